import type { FloatFormat } from './floatFormats';
import { floatParts } from './floatParts';

/**
 * The number that a float's bits stand for, exactly.
 * @param format - of at most 64 bits: wider ones hold numbers that JavaScript's do not reach
 */
export function decodeFloat(word: bigint, format: FloatFormat): number {
  const parts = floatParts(word, format);
  if (parts.kind === 'nan') return NaN;
  return (parts.negative ? -1 : 1) * magnitudeOf(parts);
}

function magnitudeOf(parts: Exclude<ReturnType<typeof floatParts>, { kind: 'nan' }>): number {
  if (parts.kind === 'zero') return 0;
  if (parts.kind === 'infinity') return Infinity;
  return Number(parts.significand) * 2 ** parts.scale;
}
