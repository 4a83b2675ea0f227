import { badBaseReason, isBase, LARGEST_CASELESS_BASE } from './digitAlphabets';
import { writeDigits } from './writeDigits';

/**
 * Writes a word as text. Only in base 10 does the sign matter: there a signed word with its top bit set is shown as
 * the negative number that it stands for. Throws a RangeError for a base outside 2 to 64.
 * @param word - below 2 ** width, without sign
 * @param width - bits in the word
 * @returns digits 0 to 9, then upper-case letters, then lower-case letters, + and /
 */
export function formatInteger(word: bigint, base: number, width: number, signed = false): string {
  if (!isBase(base)) throw new RangeError(badBaseReason(base));
  if (base === 10) return (signed ? BigInt.asIntN(width, word) : word).toString();
  return formatMagnitude(word, base);
}

/** Writes any integer with a minus sign before its digits where it is negative. */
export function formatNumber(value: bigint, base: number): string {
  return value < 0n ? `-${formatMagnitude(-value, base)}` : formatMagnitude(value, base);
}

function formatMagnitude(magnitude: bigint, base: number): string {
  if (base > LARGEST_CASELESS_BASE) return writeDigits(magnitude, base);
  return base > 10 ? magnitude.toString(base).toUpperCase() : magnitude.toString(base);
}
