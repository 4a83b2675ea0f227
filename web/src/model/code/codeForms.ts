import { readWord } from '../integer/wordLayout';

/** Whether the first byte or word that is written is the most or the least significant one. */
export type ByteOrder = 'most' | 'least';

/** A way to write a word in a program or a message; bits that fill no whole digit or byte have zeros before them. */
export interface CodeForm {
  readonly id: string;
  /** The only width in bits that it is for; absent means every width. */
  readonly bits?: number;
  /** The text depends on the order of the bytes. */
  readonly hasOrder?: boolean;
  readonly write: (word: bigint, width: number, order: ByteOrder) => string;
}

/** Every form, as they are offered. */
export const CODE_FORMS: readonly CodeForm[] = [
  { id: 'hex', write: (word, width) => `0x${hex(word, width)}` },
  { id: 'hex4', write: (word, width) => `0x${grouped(hex(word, width), 4)}` },
  { id: 'hex8', write: (word, width) => `0x${grouped(hex(word, width), 8)}` },
  { id: 'binary', write: (word, width) => `0b${binary(word, width)}` },
  { id: 'binary4', write: (word, width) => `0b${grouped(binary(word, width), 4)}` },
  { id: 'decimal', write: (word) => grouped(word.toString(), 3) },
  cArray(8),
  cArray(32),
  cArray(64),
  ofBytes('rust', (bytes) => `const VALUE: [u8; ${bytes.length}] = [${listed(bytes)}];`),
  ofBytes('python', (bytes) => pythonBytes(bytes)),
  ofBytes(
    'pythonInt',
    (bytes, order) => `int.from_bytes(${pythonBytes(bytes)}, "${order === 'most' ? 'big' : 'little'}")`,
  ),
  ofBytes('go', (bytes) => `var value = [${bytes.length}]byte{${listed(bytes)}}`),
  ofBytes('java', (bytes) => `byte[] value = {${bytes.map((byte) => `(byte) ${hexByte(byte)}`).join(', ')}};`),
  { id: 'javascript', write: (word, width) => `0x${hex(word, width)}n` },
  ofBytes('json', (bytes) => `[${bytes.join(', ')}]`),
  { id: 'verilog', write: (word, width) => `${width}'h${grouped(hex(word, width), 4)}` },
  { id: 'vhdl', write: (word, width) => `x"${hex(word, width)}"` },
  ofBytes('base64', (bytes) => btoa(String.fromCharCode(...bytes))),
  ofBytes('hexdump', hexdump),
  { id: 'uuid', bits: 128, write: (word) => hex(word, 128).replace(/^(.{8})(.{4})(.{4})(.{4})/, '$1-$2-$3-$4-') },
  { id: 'ipv6', bits: 128, write: writeIpv6 },
  { id: 'ipv4', bits: 32, write: (word) => bytesOf(word, 32, 'most').join('.') },
];

/** The forms for words of a width in bits. */
export function codeFormsFor(width: number): readonly CodeForm[] {
  return CODE_FORMS.filter(({ bits }) => bits === undefined || bits === width);
}

/** The bytes of a word. @param width - bits in the word; zeros fill the last byte */
export function bytesOf(word: bigint, width: number, order: ByteOrder): number[] {
  return itemsOf(word, width, 8, order).map(Number);
}

function itemsOf(word: bigint, width: number, bits: number, order: ByteOrder): bigint[] {
  const items = Array.from({ length: Math.ceil(width / bits) }, (_, index) => readWord(word, bits, index));
  return order === 'least' ? items : items.reverse();
}

function ofBytes(id: string, write: (bytes: readonly number[], order: ByteOrder) => string): CodeForm {
  return { id, hasOrder: true, write: (word, width, order) => write(bytesOf(word, width, order), order) };
}

function cArray(bits: number): CodeForm {
  const write = (word: bigint, width: number, order: ByteOrder) => {
    const items = itemsOf(word, width, bits, order).map((item) => `0x${hex(item, bits)}`);
    return `const uint${bits}_t value[${items.length}] = {${items.join(', ')}};`;
  };
  return { id: `c${bits}`, hasOrder: true, write };
}

function hex(word: bigint, width: number): string {
  return word.toString(16).padStart(Math.ceil(width / 4), '0');
}

function binary(word: bigint, width: number): string {
  return word.toString(2).padStart(width, '0');
}

function grouped(digits: string, size: number): string {
  return digits.replace(new RegExp(`(?!^)(?=(?:.{${size}})+$)`, 'g'), '_');
}

function hexByte(byte: number): string {
  return `0x${hex(BigInt(byte), 8)}`;
}

function listed(bytes: readonly number[]): string {
  return bytes.map(hexByte).join(', ');
}

function pythonBytes(bytes: readonly number[]): string {
  return `b"${bytes.map((byte) => hexByte(byte).replace('0', '\\')).join('')}"`;
}

const BYTES_PER_LINE = 16;
const MIDDLE = BYTES_PER_LINE / 2;

/** Lines of an address, up to 16 bytes in two groups, and their characters, as hexdump -C writes them. */
function hexdump(bytes: readonly number[]): string {
  const lines: string[] = [];
  for (let start = 0; start < bytes.length; start += BYTES_PER_LINE) {
    const line = bytes.slice(start, start + BYTES_PER_LINE);
    const written = line.map((byte, index) => (index === MIDDLE ? ' ' : '') + hex(BigInt(byte), 8)).join(' ');
    const characters = String.fromCharCode(...line).replace(/[^ -~]/g, '.');
    lines.push(`${hex(BigInt(start), 32)}  ${written.padEnd(3 * BYTES_PER_LINE)}  |${characters}|`);
  }
  return lines.join('\n');
}

/** As RFC 5952 wants it: without leading zeros, "::" for the longest run of zeros, the first of equal ones. */
function writeIpv6(word: bigint): string {
  const groups = itemsOf(word, 128, 16, 'most').map((group) => group.toString(16));
  const runs = [...groups.join(':').matchAll(/\b0(?::0\b)+/g)];
  const longest = runs.reduce((best, [run]) => (run.length > best.length ? run : best), '');
  const text = groups.join(':');
  return longest === '' ? text : text.replace(new RegExp(`(^|:)${longest}(:|$)`), '::');
}
