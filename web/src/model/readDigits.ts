import { digitValues } from './alphabets';

/**
 * The number that digits stand for.
 * @param digits - at least one, all of the base's alphabet
 */
export function readDigits(digits: string, base: number): bigint {
  const values = digitValues(base);
  let value = 0n;
  for (const digit of digits) value = value * BigInt(base) + BigInt(values[digit.charCodeAt(0)]!);
  return value;
}
