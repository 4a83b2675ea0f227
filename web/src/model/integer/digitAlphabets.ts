export const SMALLEST_BASE = 2;
export const LARGEST_BASE = 64;

/** Digits by value when a number is written: letters are upper-case first. */
export const WRITTEN_DIGITS = '0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz+/';

/** Digits by value when a text is read: letters are lower-case first. Above base 36 this is meant to differ. */
export const READ_DIGITS = '0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ+/';

/** Up to this base a digit may be typed in either letter case. */
export const LARGEST_CASELESS_BASE = 36;

export function isBase(base: number): boolean {
  return Number.isInteger(base) && base >= SMALLEST_BASE && base <= LARGEST_BASE;
}

export function badBaseReason(base: number): string {
  return `Base must be an integer between 2 and 64, got: ${base}`;
}

/**
 * The value of each character code in a base, -1 where it is no digit. Only ASCII counts: letters of other scripts that
 * become ASCII in lower case, such as the Kelvin sign, are no digits. Cached; do not change what it gives.
 */
export function digitValues(base: number): Int8Array {
  return (digitValueTables[base] ??= makeDigitValues(base));
}

const digitValueTables: (Int8Array | undefined)[] = [];

function makeDigitValues(base: number): Int8Array {
  const values = new Int8Array(128).fill(-1);
  for (const [value, digit] of [...readAlphabet(base)].entries()) {
    values[digit.charCodeAt(0)] = value;
    if (base <= LARGEST_CASELESS_BASE) values[digit.toUpperCase().charCodeAt(0)] = value;
  }
  return values;
}

/** The characters that a text in a base may hold, in the order of their values. */
export function readAlphabet(base: number): string {
  return READ_DIGITS.slice(0, base);
}

/** Digits as they were read, in the letters that a number of this base is written with. */
export function asWritten(digits: string, base: number): string {
  if (base <= LARGEST_CASELESS_BASE) return digits.toUpperCase();
  const codes = new TextEncoder().encode(digits);
  for (let place = 0; place < codes.length; place++) if (codes[place]! >= FIRST_LETTER) codes[place]! ^= OTHER_CASE;
  return new TextDecoder().decode(codes);
}

const FIRST_LETTER = 'A'.charCodeAt(0);
/** The bit in which the codes of a letter's two cases differ: the two alphabets differ in the letters' case alone. */
const OTHER_CASE = 0x20;
