import { type Literal, readLiteral } from './literal';
import { bitLength, type Reading } from './reading';

/** Widths in bits that the items of a list can have. */
const ITEM_WIDTHS = [8, 16, 32, 64, 128, 256, 512, 1024];

const COMMENTS = /\/\*[^*]*\*\/|\/\/[^\n]*/g;
const CASTS = /\(\s*(?:unsigned |signed )?[a-z]\w*\s*\)/gi;
/** Names of types that say how wide an item is. */
const SIZED = /(?:\b|[a-z])(?:u?int_?|[ui])(8|16|32|64|128)(?:_t|array|\b)/i;
const NAMED: readonly (readonly [name: RegExp, bits: number])[] = [
  [/\b(?:bytes?|bytearray|char|db)\b/i, 8],
  [/\b(?:short|ushort|dw)\b/i, 16],
  [/\b(?:int|uint|dword|dd)\b/i, 32],
  [/\b(?:long|ulong|qword|dq)\b/i, 64],
];
/** What assemblers write before data. */
const DIRECTIVE = /^(?:\w+:?\s+)?(?:\.?(?:byte|short|hword|word|long|int|quad|xword)|d[bwdq])\s+/i;

/**
 * Reads several numbers: an array of C, Rust, Go, Java, Python or JSON, an assembler's data, or numbers between commas,
 * blanks or line breaks. Bare ones are hexadecimal where one has a letter or all are filled with zeros to one length.
 * @returns the readings, the likeliest first: the items at the width that their type or digits suggest, then wider
 */
export function readList(text: string): Reading[] {
  const code = text.replace(COMMENTS, ' ').trim();
  const { items: source, isBracketed } = itemsOf(code);
  const tokens = source
    .replace(CASTS, ' ')
    .split(/[\s,;{}[\]()]+/)
    .filter(Boolean);
  if (tokens.length < (isBracketed ? 1 : 2)) return [];
  const literals = tokens.map(readLiteral);
  if (!literals.every((literal) => literal !== undefined)) return [];
  const typed = typeBits(code);
  if (!literals.every(({ isBare }) => isBare)) return widths(literals, typed);
  const hexadecimal = tokens.map((token) => readLiteral(`0x${token}`)!);
  if (!literals.every(({ base }) => base === 10)) return widths(hexadecimal, typed);
  const isFilled = !isBracketed && tokens.every(({ length }) => length > 1 && length === tokens[0]!.length);
  const readings = widths(literals, typed);
  if (!isFilled) return readings;
  const inHexadecimal = named(widths(hexadecimal, typed), 'hexadecimal');
  if (tokens.every((token) => /^(?:[01]{4})+$/.test(token))) {
    const binary = tokens.map((token) => readLiteral(`0b${token}`)!);
    return [...named([numbersOf(binary, tokens[0]!.length)], 'binary'), ...readings, ...inHexadecimal];
  }
  const isHexadecimal = tokens.some((token) => token.startsWith('0'));
  return isHexadecimal ? [...inHexadecimal, ...readings] : [...readings, ...inHexadecimal];
}

function named(readings: readonly Reading[], name: string): Reading[] {
  return readings.map((reading) => ({ ...reading, detail: `${reading.detail}, ${name}` }));
}

/** What lies in the brackets of an array, or the whole text. */
function itemsOf(code: string): { items: string; isBracketed: boolean } {
  const assigned = code.slice(code.lastIndexOf('=') + 1);
  const bracketed = between(code, '{', '}') ?? between(assigned, '[', ']');
  return { items: bracketed ?? code.replace(DIRECTIVE, ''), isBracketed: bracketed !== undefined };
}

function between(text: string, open: string, close: string): string | undefined {
  const [start, end] = [text.indexOf(open), text.lastIndexOf(close)];
  return start < 0 || end < start ? undefined : text.slice(start + 1, end);
}

function typeBits(code: string): number | undefined {
  const sized = SIZED.exec(code);
  return sized ? Number(sized[1]) : NAMED.find(([name]) => name.test(code))?.[1];
}

/** The literals at the width that suits them, and at the usual wider ones. */
function widths(literals: readonly Literal[], typed: number | undefined): Reading[] {
  const needed = Math.max(...literals.map(itemBits));
  const least = ITEM_WIDTHS.find((bits) => bits >= needed);
  if (least === undefined) return [];
  const usual = typed === undefined || typed < least ? least : typed;
  const wider = ITEM_WIDTHS.filter((bits) => bits >= least && bits <= 64 && bits !== usual);
  return [usual, ...wider].map((bits) => numbersOf(literals, bits));
}

function itemBits({ value, base, bits }: Literal): number {
  return value < 0n ? bitLength(-value - 1n) + 1 : base === 10 ? bitLength(value) : bits;
}

function numbersOf(literals: readonly Literal[], bits: number): Reading {
  const items = literals.map(({ value }) => BigInt.asUintN(bits, value));
  return { kind: 'words', detail: `${bits} bits`, items, itemBits: bits, order: 'first' };
}
