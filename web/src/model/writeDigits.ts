import { WRITTEN_DIGITS } from './alphabets';

/** Writes a number that is not negative in a base from 2 to 64. */
export function writeDigits(magnitude: bigint, base: number): string {
  const divisor = BigInt(base);
  let digits = '';
  let rest = magnitude;
  do {
    digits = WRITTEN_DIGITS.charAt(Number(rest % divisor)) + digits;
    rest /= divisor;
  } while (rest > 0n);
  return digits;
}
