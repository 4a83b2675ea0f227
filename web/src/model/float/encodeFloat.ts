import { type FloatFormat, floatFormatFor } from './floatFormats';
import { floatParts } from './floatParts';

/**
 * Encodes a number in a format with IEEE 754's roundTiesToEven: to the nearest float and, halfway between two, to the one
 * with the even mantissa. What is too small for a normal number becomes subnormal or a zero that keeps the sign.
 * @param value - finite
 * @returns the float's bits, or 'overflow' for a number beyond the largest finite float
 */
export function encodeFloat(value: number, format: FloatFormat): bigint | 'overflow' {
  const double = bitsOfDouble(value);
  const parts = floatParts(double, floatFormatFor(64)!);
  const isFinite = parts.kind === 'finite';
  return encodeScaled(double >> 63n === 1n, isFinite ? parts.significand : 0n, isFinite ? parts.scale : 0, format);
}

/**
 * The same for significand * 2 ** scale, or its negative.
 * @param significand - not negative
 */
export function encodeScaled(
  negative: boolean,
  significand: bigint,
  scale: number,
  { exponentBits, mantissaBits, bias }: FloatFormat,
): bigint | 'overflow' {
  const sign = BigInt(negative) << BigInt(exponentBits + mantissaBits);
  if (significand === 0n) return sign;

  const top = significand.toString(2).length - 1 + scale;
  const leastExponent = 1 - bias;
  const exponent = Math.max(top, leastExponent);
  const rounded = scaledToNearest(significand, scale - (exponent - mantissaBits));
  // The implicit one of a normal number, and a carry out of rounding, both add 1 to the exponent's bits.
  const bits = (BigInt(exponent - leastExponent) << BigInt(mantissaBits)) + rounded;
  const allOnes = (1n << BigInt(exponentBits)) - 1n;
  return bits >> BigInt(mantissaBits) >= allOnes ? 'overflow' : sign | bits;
}

function bitsOfDouble(value: number): bigint {
  const view = new DataView(new ArrayBuffer(8));
  view.setFloat64(0, value);
  return view.getBigUint64(0);
}

// value * 2 ** shift as a whole number.
function scaledToNearest(value: bigint, shift: number): bigint {
  if (shift >= 0) return value << BigInt(shift);
  const dropped = BigInt(-shift);
  const whole = value >> dropped;
  const rest = value - (whole << dropped);
  const half = 1n << (dropped - 1n);
  const up = rest > half || (rest === half && (whole & 1n) === 1n);
  return up ? whole + 1n : whole;
}
