import { leadingDigits } from '../integer/leadingDigits';
import type { FloatFormat } from './floatFormats';
import { type FloatParts, floatParts } from './floatParts';

const MOST_INTEGER_DIGITS = 20;
const MOST_FRACTION_DIGITS = 20;
const MOST_DIGITS = 25;
const DIGITS_WITH_EXPONENT = 16;

/**
 * Writes the number that a float's bits stand for in decimal. Every digit is a true digit of the exact value: what
 * does not fit is cut off and never rounded, so no digit differs from a longer table of the same number.
 *
 * A fraction that ends within 20 digits is written without trailing zeros; one that goes on is cut to 20 digits, which
 * are all zeros for a very small number (which distinguishes it from zero, written "0.0"). Large normal numbers are cut to 16
 * digits with an exponent. There, trailing zeros go when the value's bits reach below the binary point, but one digit
 * stays after the decimal point.
 */
export function displayFloat(word: bigint, format: FloatFormat): string {
  const parts = floatParts(word, format);
  if (parts.kind === 'nan') return 'NaN';
  if (parts.kind === 'zero') return '0.0';
  const sign = parts.negative ? '-' : '';
  if (parts.kind === 'infinity') return `${sign}Infinity`;
  return sign + (parts.scale >= 0 ? formatIntegral(parts) : formatFractional(parts));
}

type Finite = Extract<FloatParts, { kind: 'finite' }>;

function formatIntegral({ significand, scale }: Finite): string {
  const { digits, count } = leadingDigits(significand, scale, MOST_INTEGER_DIGITS);
  if (count <= MOST_INTEGER_DIGITS) return `${digits}.0`;
  return withExponent(digits.slice(1, DIGITS_WITH_EXPONENT), digits, count);
}

function formatFractional({ significand, scale, normal }: Finite): string {
  const places = BigInt(-scale);
  const integer = (significand >> places).toString();
  const fraction = fractionDigits(BigInt.asUintN(-scale, significand), places);
  const tooLong = integer.length > MOST_INTEGER_DIGITS || integer.length + fraction.length > MOST_DIGITS;
  if (!normal || !tooLong) return `${integer}.${fraction}`;
  const further = (integer + fraction).slice(1, DIGITS_WITH_EXPONENT).replace(/0+$/, '');
  return withExponent(further || '0', integer, integer.length);
}

function withExponent(further: string, digits: string, integerDigits: number): string {
  return `${digits.charAt(0)}.${further}e+${integerDigits - 1}`;
}

// The digits of fraction / 2 ** places.
function fractionDigits(fraction: bigint, places: bigint): string {
  const scaled = fraction * 10n ** BigInt(MOST_FRACTION_DIGITS);
  const digits = (scaled >> places).toString().padStart(MOST_FRACTION_DIGITS, '0');
  const goesOn = BigInt.asUintN(Number(places), scaled) !== 0n;
  return goesOn ? digits : digits.replace(/0+$/, '') || '0';
}
