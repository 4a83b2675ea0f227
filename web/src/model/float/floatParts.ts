import type { FloatFormat } from './floatFormats';

/** What a float's bits say. A finite number's magnitude is exactly significand * 2 ** scale. */
export type FloatParts =
  | { kind: 'nan' }
  | { kind: 'infinity'; negative: boolean }
  | { kind: 'zero'; negative: boolean }
  | { kind: 'finite'; negative: boolean; normal: boolean; significand: bigint; scale: number };

/**
 * Takes a float apart by the encoding rules of IEEE 754-2019, section 3.4. An exponent of all ones means infinity or NaN
 * in every format: E4M3 follows the same rule here, unlike the E4M3 of the Open Compute Project's 8-bit Floating Point
 * Specification, which has no infinity and whose exponent of all ones encodes numbers and one NaN.
 */
export function floatParts(word: bigint, { exponentBits, mantissaBits, bias }: FloatFormat): FloatParts {
  const mantissa = BigInt.asUintN(mantissaBits, word);
  const exponent = Number(BigInt.asUintN(exponentBits, word >> BigInt(mantissaBits)));
  const negative = BigInt.asUintN(1, word >> BigInt(exponentBits + mantissaBits)) === 1n;

  if (exponent === 2 ** exponentBits - 1) return mantissa === 0n ? { kind: 'infinity', negative } : { kind: 'nan' };
  if (exponent === 0 && mantissa === 0n) return { kind: 'zero', negative };
  const normal = exponent > 0;
  const significand = normal ? mantissa | (1n << BigInt(mantissaBits)) : mantissa;
  return { kind: 'finite', negative, normal, significand, scale: Math.max(exponent, 1) - bias - mantissaBits };
}
