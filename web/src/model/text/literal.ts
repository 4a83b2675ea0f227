import { digitValues } from '../integer/digitAlphabets';
import { readDigits } from '../integer/readDigits';
import { bitLength } from './reading';

/** One number as program texts write it. */
export interface Literal {
  /** Negative after a minus sign. */
  readonly value: bigint;
  readonly base: number;
  /** Width in bits that its digits, or a size before them, suggest. */
  readonly bits: number;
  /** Without anything that says its base. */
  readonly isBare: boolean;
}

const BASES: Readonly<Record<string, number>> = {
  '0x': 16,
  $: 16,
  '#': 16,
  x: 16,
  h: 16,
  '0b': 2,
  b: 2,
  '0o': 8,
  o: 8,
  d: 10,
};

const SUFFIX = /_?(?:u?l{0,2}|l{1,2}u|n|[ui](?:8|16|32|64|128|size))$/i;
/** Digits with single separators between them. */
const DIGITS = /^[\da-z]+(?:(?:[_',]|\s+)[\da-z]+)*$/i;
/** Groups of three, as numbers are written for people. */
const GROUPED = /^\d{1,3}(?:([ ,])\d{3})(?:\1\d{3})*$/;
/** Groups of four hexadecimal digits, as calculators write them. */
const HEX_GROUPS = /^[\da-f]{1,4}(?: [\da-f]{4})+$/i;

/**
 * Reads one literal: with 0x, 0b, 0o, $ or # before it, h after it, a suffix of C, Rust, Java or JavaScript, in the
 * forms of Verilog (8'hff) and VHDL (x"ff", 16#ff#), or bare: decimal digits are decimal, hexadecimal digits
 * hexadecimal. Digits may be separated by _ and ', after a prefix also by commas and blanks.
 */
export function readLiteral(text: string): Literal | undefined {
  const [, sign, body] = /^([+\-−]?)\s*([^]*)$/.exec(text.trim()) as unknown as [string, string, string];
  const literal = readSized(body) ?? readPrefixed(body) ?? readBare(body);
  return literal && sign && sign !== '+' ? { ...literal, value: -literal.value } : literal;
}

function readSized(text: string): Literal | undefined {
  const [, size, letter, digits] =
    /^(\d*)\s*'\s*s?([hdbo])\s*([\da-f_]+)$/i.exec(text) ?? /^(\d*)([xbod])"([\da-f_]+)"$/i.exec(text) ?? [];
  if (letter !== undefined) return literalOf(digits!, BASES[letter.toLowerCase()]!, false, Number(size));
  const [, base, based] = /^(2|8|10|16)#([\da-f_]+)#$/i.exec(text) ?? [];
  return base === undefined ? undefined : literalOf(based!, Number(base), false);
}

function readPrefixed(text: string): Literal | undefined {
  const [, prefix, rest] = /^(0[xbo]|[$#])\s*([^]*)$/i.exec(text) ?? [];
  if (prefix === undefined) return undefined;
  const base = BASES[prefix.toLowerCase()]!;
  const suffix = SUFFIX.exec(rest!)![0];
  return literalOf(rest!.slice(0, rest!.length - suffix.length), base, false);
}

function readBare(text: string): Literal | undefined {
  const [, hexadecimal] = /^([\da-f][\da-f_']*)h$/i.exec(text) ?? [];
  if (hexadecimal !== undefined) return literalOf(hexadecimal, 16, false);
  const [, decimal] = /^(\d[\d_']*?)(?:_?(?:u?l{1,2}|l{0,2}u|n|[ui](?:8|16|32|64|128|size)))?$/i.exec(text) ?? [];
  if (decimal !== undefined) return literalOf(decimal, 10, decimal === text);
  if (GROUPED.test(text)) return literalOf(text, 10, true);
  if (HEX_GROUPS.test(text) && /[a-f]/i.test(text)) return literalOf(text, 16, true);
  return /\s|,/.test(text) ? undefined : literalOf(text, 16, true);
}

const DIGIT_BITS: Readonly<Record<number, number>> = { 2: 1, 8: 3, 16: 4 };

function literalOf(text: string, base: number, isBare: boolean, size = 0): Literal | undefined {
  if (!DIGITS.test(text)) return undefined;
  const digits = text.replace(/[_',\s]/g, '');
  const values = digitValues(base);
  for (let place = 0; place < digits.length; place++) if (values[digits.charCodeAt(place)]! < 0) return undefined;
  const value = readDigits(digits, base);
  const bits = size || (base === 10 ? bitLength(value) : digits.length * DIGIT_BITS[base]!);
  return { value, base, bits, isBare };
}
