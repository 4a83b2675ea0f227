import type { FloatFormat } from '../float/floatFormats';
import { type FloatParts, floatParts } from '../float/floatParts';
import type { InspectedFormat } from './inspectedFormats';

/** What a float's bits say in one format. A finite number's magnitude is exactly significand * 2 ** scale. */
export function floatValue(word: bigint, { format, hasNumbersAtTop }: InspectedFormat): FloatParts {
  const parts = floatParts(word, format);
  if (!hasNumbersAtTop || (parts.kind !== 'infinity' && parts.kind !== 'nan')) return parts;
  const { exponentBits, mantissaBits, bias } = format;
  const mantissa = BigInt.asUintN(mantissaBits, word);
  const hidden = 1n << BigInt(mantissaBits);
  if (mantissa === hidden - 1n) return { kind: 'nan' };
  const negative = isNegative(word, format);
  const scale = 2 ** exponentBits - 1 - bias - mantissaBits;
  return { kind: 'finite', negative, normal: true, significand: hidden | mantissa, scale };
}

/** The float as a JavaScript number. @param format - of at most 64 bits, whose numbers JavaScript's hold exactly */
export function floatNumber(word: bigint, format: InspectedFormat): number {
  const parts = floatValue(word, format);
  if (parts.kind === 'nan') return NaN;
  const magnitude =
    parts.kind === 'zero' ? 0 : parts.kind === 'infinity' ? Infinity : Number(parts.significand) * 2 ** parts.scale;
  return parts.negative ? -magnitude : magnitude;
}

/**
 * The bits of the nearest float on one side, as nextUp and nextDown of IEEE 754-2019, section 5.3.1, give it.
 * @param step - 1 towards infinity, -1 towards its negative
 * @returns undefined where there is none: of NaN and beyond the last value
 */
export function nextFloat(word: bigint, inspected: InspectedFormat, step: 1 | -1): bigint | undefined {
  const { kind } = floatValue(word, inspected);
  const sign = signBit(inspected.format);
  const magnitude = word & (sign - 1n);
  const isAway = isNegative(word, inspected.format) === step < 0;
  if (kind === 'nan' || (kind === 'infinity' && isAway)) return undefined;
  if (kind === 'zero') return step < 0 ? sign | 1n : 1n;
  const next = (word & sign) | (magnitude + (isAway ? 1n : -1n));
  return floatValue(next, inspected).kind === 'nan' ? undefined : next;
}

/** The exponent of the gap between a finite float and the next one of larger magnitude: a power of two. */
export function ulpExponent(parts: FloatParts, { bias, mantissaBits }: FloatFormat): number | undefined {
  if (parts.kind === 'finite') return parts.scale;
  return parts.kind === 'zero' ? 1 - bias - mantissaBits : undefined;
}

/** What kind of float it is, in words; of a NaN with its payload. */
export function floatClass(word: bigint, inspected: InspectedFormat): string {
  const parts = floatValue(word, inspected);
  if (parts.kind === 'finite') return parts.normal ? 'normal' : 'subnormal';
  if (parts.kind !== 'nan') return parts.kind;
  const { mantissaBits } = inspected.format;
  if (!inspected.hasQuietBit) return `NaN, mantissa 0x${BigInt.asUintN(mantissaBits, word).toString(16)}`;
  const isQuiet = BigInt.asUintN(1, word >> BigInt(mantissaBits - 1)) === 1n;
  const payload = BigInt.asUintN(mantissaBits - 1, word).toString(16);
  return `${isQuiet ? 'quiet' : 'signalling'} NaN, payload 0x${payload}`;
}

function signBit({ exponentBits, mantissaBits }: FloatFormat): bigint {
  return 1n << BigInt(exponentBits + mantissaBits);
}

function isNegative(word: bigint, format: FloatFormat): boolean {
  return (word & signBit(format)) !== 0n;
}
