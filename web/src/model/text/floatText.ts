import { encodeScaled } from '../float/encodeFloat';
import { floatFormatFor } from '../float/floatFormats';
import { failure, type Result, success } from '../result';

/** A number with a fraction or an exponent, as written: numerator / denominator * 2 ** scale, or what is no number. */
export interface FloatText {
  readonly negative: boolean;
  readonly special?: 'infinity' | 'nan';
  readonly numerator: bigint;
  readonly denominator: bigint;
  readonly scale: number;
}

const DECIMAL = /^([+-]?)(\d*)\.?(\d*)(?:e([+-]?\d{1,9}))?[fl]?$/i;
const HEXADECIMAL = /^([+-]?)0x([\da-f]*)\.?([\da-f]*)p([+-]?\d{1,9})[fl]?$/i;
const SPECIAL = /^([+-]?)(inf(?:inity)?|nan)$/i;

/** Texts and exponents beyond these make numbers that no format holds, and take long to work with. */
const LONGEST_TEXT = 1000;
const LARGEST_DECIMAL_EXPONENT = 90_000;

/**
 * Reads a decimal float such as 1.5e-3, a hexadecimal one of C99 such as 0x1.8p3, an infinity or a NaN, exactly.
 * @returns undefined for any other text
 */
export function readFloat(text: string): FloatText | undefined {
  if (text.length > LONGEST_TEXT) return undefined;
  const special = SPECIAL.exec(text);
  if (special) {
    const kind = /^n/i.test(special[2]!) ? 'nan' : 'infinity';
    return { negative: special[1] === '-', special: kind, numerator: 0n, denominator: 1n, scale: 0 };
  }
  const isHexadecimal = /0x/i.test(text);
  const [, sign, whole = '', fraction = '', exponent = '0'] = (isHexadecimal ? HEXADECIMAL : DECIMAL).exec(text) ?? [];
  const digits = whole + fraction;
  if (sign === undefined || digits === '') return undefined;
  const negative = sign === '-';
  const power = Number(exponent);
  if (isHexadecimal) {
    const numerator = BigInt(`0x${digits}`);
    return { negative, numerator, denominator: 1n, scale: power - 4 * fraction.length };
  }
  const tens = Math.max(-LARGEST_DECIMAL_EXPONENT, Math.min(LARGEST_DECIMAL_EXPONENT, power - fraction.length));
  const factor = 10n ** BigInt(Math.abs(tens));
  const numerator = BigInt(digits);
  return {
    negative,
    numerator: tens > 0 ? numerator * factor : numerator,
    denominator: tens < 0 ? factor : 1n,
    scale: 0,
  };
}

const MARKED_AS_FLOAT = /[.ep]|inf|nan/i;

/**
 * What a text that is no integer is as a float of the same width: the bits of the nearest one.
 * @param width - bits in the word
 * @returns undefined where the text could be an integer, is no number, or is too large, or where there is no such float
 */
export function nearestFloat(text: string, width: number): bigint | undefined {
  const trimmed = text.trim();
  const float = MARKED_AS_FLOAT.test(trimmed) ? readFloat(trimmed) : undefined;
  const encoded = float && encodeFloatText(float, width);
  return encoded?.ok ? encoded.value : undefined;
}

/** The bits of the float that is nearest. @param width - bits in the word */
export function encodeFloatText(float: FloatText, width: number): Result<bigint> {
  const format = floatFormatFor(width);
  if (!format) return failure(`There is no float of ${width} bits`);
  const { exponentBits, mantissaBits } = format;
  if (float.special) {
    const exponent = ((1n << BigInt(exponentBits)) - 1n) << BigInt(mantissaBits);
    const quiet = float.special === 'nan' ? 1n << BigInt(mantissaBits - 1) : 0n;
    return success(exponent | quiet | (BigInt(float.negative) << BigInt(width - 1)));
  }
  // Two bits more than the mantissa has, and one that says whether anything is left, round as all digits would.
  const { numerator, denominator, negative, scale } = float;
  const missing = mantissaBits + 4 + denominator.toString(2).length - numerator.toString(2).length;
  const shift = denominator === 1n ? 0 : Math.max(0, missing);
  const scaled = numerator << BigInt(shift);
  const quotient = scaled / denominator;
  const isExact = quotient * denominator === scaled;
  const bits = encodeScaled(negative, (quotient << 1n) | BigInt(!isExact), scale - shift - 1, format);
  return bits === 'overflow' ? failure(`Too large for a float of ${width} bits`) : success(bits);
}
