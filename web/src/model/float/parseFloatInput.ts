import { failure, type Result, success } from '../result';
import { decodeFloat } from './decodeFloat';
import { encodeFloat } from './encodeFloat';
import { floatFormatFor, type FloatStandard, floatStandardFor } from './floatFormats';

const WIDTHS = [8, 16, 32, 64, 128, 256];
const WIDEST_INPUT = 64;
const LARGEST_RELATIVE_ERROR = 1e-10;
/** Each digit can be read in one way only, so that a million of them before a stray character are refused at once. */
const NUMBER = /^[+-]?(\d+(\.\d*)?|\.\d+)(e[+-]?\d+)?$/i;

/**
 * Reads the bits of a float from a decimal number that the user typed, with or without an exponent. It is first read as
 * a JavaScript number; one that the format does not hold to within 1e-10 of its size is refused, with the nearest that
 * it does hold. A minus sign before a zero is kept. Hexadecimal and the like are no numbers here.
 * @param width - bits in the word
 */
export function parseFloatInput(text: string, width: number, standard = floatStandardFor(width)): Result<bigint> {
  const refusal = widthRefusal(width, standard);
  if (refusal !== undefined) return failure(refusal);
  const trimmed = text.trim();
  if (/^[+-]?infinity$/i.test(trimmed)) return failure('Cannot assign Infinity value');
  if (/^nan$/i.test(trimmed)) return failure('Cannot assign NaN value');
  if (!NUMBER.test(trimmed)) return failure('Input is not a valid number');

  const value = Number(trimmed);
  const overflow = (written: string) =>
    failure(`Value ${written} cannot be represented in ${width}-bit ${standard} format (overflow)`);
  // Beyond the range of JavaScript's own numbers there is only the text to show.
  if (!Number.isFinite(value)) return overflow(trimmed);
  const format = floatFormatFor(width, standard)!;
  const word = encodeFloat(value, format);
  if (word === 'overflow') return overflow(`${value}`);

  const closest = decodeFloat(word, format);
  if (Math.abs(closest - value) <= Math.abs(value) * LARGEST_RELATIVE_ERROR) return success(word);
  return failure(`Value ${value} cannot be precisely represented in ${width}-bit ${standard} (closest: ${closest})`);
}

function widthRefusal(width: number, standard: FloatStandard): string | undefined {
  if (width === 8 && standard === 'IEEE754') return '8-bit floats require E5M2 or E4M3 standard';
  if (width !== 8 && standard !== 'IEEE754') return 'E5M2 and E4M3 standards are only valid for 8-bit floats';
  if (!WIDTHS.includes(width)) return `Invalid bit resolution. Must be one of: ${WIDTHS.join(', ')}`;
  if (width <= WIDEST_INPUT) return undefined;
  return (
    `Input validation not supported for ${width}-bit floats (JavaScript limitation). ` +
    'Use printToFloat with hex bit patterns instead.'
  );
}
