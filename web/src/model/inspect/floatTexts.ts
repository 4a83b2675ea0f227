import type { FloatFormat } from '../float/floatFormats';
import type { FloatParts } from '../float/floatParts';
import { setBits } from '../integer/setBits';

/** All decimal digits of a float, exactly: up to 16,494 after the point at 128 bits, and 262,378 at 256 bits. */
export function exactDecimal(parts: FloatParts): string {
  if (parts.kind === 'nan') return 'NaN';
  const sign = parts.negative ? '-' : '';
  if (parts.kind === 'zero') return `${sign}0.0`;
  if (parts.kind === 'infinity') return `${sign}Infinity`;
  const { significand, scale } = parts;
  if (scale >= 0) return `${sign}${significand << BigInt(scale)}.0`;
  // Without factors of two the digits end where they should: 2 ** -n is 5 ** n / 10 ** n.
  const spare = Math.min(-scale, setBits(significand)[0]!);
  const places = -scale - spare;
  const digits = ((significand >> BigInt(spare)) * 5n ** BigInt(places)).toString().padStart(places + 1, '0');
  const point = digits.length - places;
  return `${sign}${digits.slice(0, point)}.${digits.slice(point) || '0'}`;
}

/**
 * A float as the conversion %a of C99 writes it, such as 0x1.8p+1. Subnormal numbers begin with 0 and have the exponent
 * of the smallest normal ones, which C99 leaves open and most libraries do.
 */
export function hexFloat(parts: FloatParts, { mantissaBits, bias }: FloatFormat): string {
  if (parts.kind === 'nan') return 'nan';
  const sign = parts.negative ? '-' : '';
  if (parts.kind === 'infinity') return `${sign}inf`;
  if (parts.kind === 'zero') return `${sign}0x0p+0`;
  const digits = Math.ceil(mantissaBits / 4);
  const fraction = BigInt.asUintN(mantissaBits, parts.significand) << BigInt(4 * digits - mantissaBits);
  const written = fraction.toString(16).padStart(digits, '0').replace(/0+$/, '');
  const exponent = parts.normal ? parts.scale + mantissaBits : 1 - bias;
  return `${sign}0x${parts.normal ? 1 : 0}${written && `.${written}`}p${exponent < 0 ? '' : '+'}${exponent}`;
}
