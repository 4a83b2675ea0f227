import { blockOfColor } from '../color/colorWord';
import { parseColor } from '../color/parseColor';
import { failure, type Result, success } from '../result';
import { readAddress } from './addresses';
import { readDump, readRegisters } from './dump';
import { readEncodings } from './encodings';
import { readFloat } from './floatText';
import { readList } from './list';
import { type Literal, readLiteral } from './literal';
import { readPlainText, readQuoted, unquoted } from './quoted';
import { bytesReading, type ItemOrder, numberReading, OPAQUE_BITS, type Reading } from './reading';

/** Characters; a text for the widest sheet has far fewer. */
export const LONGEST_READ_TEXT = 16_384;

/**
 * Everything that a text can mean as a number, the likeliest first. The last one is always its characters.
 * @returns a failure for an empty text and one that is too long
 */
export function readText(text: string): Result<readonly Reading[]> {
  const trimmed = text.trim();
  if (trimmed === '') return failure('No text');
  if (trimmed.length > LONGEST_READ_TEXT) {
    return failure(`${trimmed.length} characters, at most ${LONGEST_READ_TEXT} are read`);
  }
  return success(withoutRepeats([...readingsOf(trimmed), readPlainText(trimmed)]));
}

function readingsOf(text: string): Reading[] {
  const found = readForms(text);
  if (found.length > 0) return found;
  // What is assigned to a name, or ends a statement.
  const rest = /^[\w\s.:<>*&[\]]+=\s*([^=][^]*?);?$/.exec(text)?.[1] ?? /^([^]+);$/.exec(text)?.[1];
  return rest === undefined ? [] : readForms(rest.trim());
}

function readForms(text: string): Reading[] {
  const inner = unquoted(text)?.trim();
  return [
    ...readOne(text),
    ...readSeveral(text),
    ...readEncodings(text),
    ...(inner ? [...readOne(inner), ...readSeveral(inner), ...readEncodings(inner)] : []),
  ];
}

function readOne(text: string): Reading[] {
  const literal = readLiteral(text);
  const float = readFloat(text);
  return [
    ...(literal ? readingsOfLiteral(text, literal) : []),
    ...colorReading(text),
    ...(float ? [{ ...numberReading('float', 0n, 0), float }] : []),
  ];
}

function readSeveral(text: string): Reading[] {
  const code = readCall(text);
  const dump = readDump(text);
  const address = readAddress(text);
  const quoted = readQuoted(text);
  return [
    ...(code ? [code] : []),
    ...(quoted ? [quoted] : []),
    ...(dump ? [dump] : []),
    ...(address ? [address] : []),
    ...readList(text),
    ...readRegisters(text),
  ];
}

/** The bases in which digits that stand alone can be meant, too. */
const OTHER_BASES = [
  { base: 10, prefix: '' },
  { base: 16, prefix: '0x' },
  { base: 2, prefix: '0b' },
  { base: 8, prefix: '0o' },
];

function readingsOfLiteral(text: string, literal: Literal): Reading[] {
  const first = ofLiteral(literal);
  if (!literal.isBare || /\s|,/.test(text)) return [first];
  const others = OTHER_BASES.filter(({ base }) => base !== literal.base)
    .map(({ prefix }) => readLiteral(text.replace(/^(-?)/, `$1${prefix}`)))
    .filter((other) => other !== undefined);
  return [first, ...others.map(ofLiteral)];
}

function ofLiteral({ value, base, bits }: Literal): Reading {
  return numberReading('number', value, bits, `base ${base}`);
}

function colorReading(text: string): Reading[] {
  const color = text.length < 100 ? parseColor(text) : failure('');
  return color.ok
    ? [numberReading('color', blockOfColor(color.value.color), color.value.hasAlpha ? 32 : OPAQUE_BITS)]
    : [];
}

const FROM_HEX = /(?:from_?hex|unhexlify|decodeHex)\w*\(\s*["']([\da-f\s]+)["']/i;
const FROM_BYTES = /from_(?:bytes|[bl]e_bytes)\(\s*(b["'](?:\\.|[^\\"'])*["'])\s*[,)]/i;
const FROM_DIGITS = /(?:BigInteger|BigInt|SetString|from_str_radix|int)\(\s*["'`]([\w+-]+)["'`]\s*(?:,\s*(\d+)\s*)?\)/;

/** Reads what calls a constructor from a text: of hexadecimal digits, of bytes, or of a number. */
function readCall(text: string): Reading | undefined {
  const order: ItemOrder = /["']little["']|from_le/.test(text) ? 'last' : 'first';
  const pairs = FROM_HEX.exec(text)?.[1]!.replace(/\s/g, '').match(/../g);
  if (pairs)
    return {
      ...bytesReading(
        'words',
        pairs.map((pair) => parseInt(pair, 16)),
        order,
      ),
      detail: '8 bits',
    };
  const bytes = FROM_BYTES.exec(text);
  const read = bytes && readQuoted(bytes[1]!);
  if (read) return { ...read, order };
  const [, digits, base] = FROM_DIGITS.exec(text) ?? [];
  const prefix = base === undefined ? '' : (OTHER_BASES.find((each) => `${each.base}` === base)?.prefix ?? '');
  const literal = digits === undefined ? undefined : readLiteral(/^0[xbo]/i.test(digits) ? digits : prefix + digits);
  return literal && ofLiteral(literal);
}

/** Readings that name the same thing twice are one. */
function withoutRepeats(readings: readonly Reading[]): Reading[] {
  const seen = new Set<string>();
  return readings.filter(({ kind, detail }) => {
    const name = `${kind} ${detail}`;
    return !seen.has(name) && seen.add(name);
  });
}
