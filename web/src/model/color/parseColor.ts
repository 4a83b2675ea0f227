import { failure, type Result, success } from '../result';
import { COLOR_SPACES } from './colorSpaces';
import { parseColorFunction, type ParsedColor } from './parseColorFunction';

/**
 * Reads a colour in any notation, whichever one the field shows: #RGB, #RGBA, #RRGGBB, #RRGGBBAA, or the functions rgb,
 * hsl, hwb, lab, lch, oklab and oklch, each also with an "a" after its name. Colours outside the gamut are clamped
 * channel by channel.
 */
export function parseColor(text: string): Result<ParsedColor> {
  const normal = text.toLowerCase().replace(/\s+/g, ' ').trim();
  if (normal === '') return failure('Input must be a non-empty string');
  if (normal.startsWith('#')) return parseHex(normal.slice(1));
  const space = COLOR_SPACES.find(({ name }) => normal.startsWith(name.toLowerCase()));
  return space ? parseColorFunction(normal, space) : failure('Unknown or invalid color format');
}

function parseHex(digits: string): Result<ParsedColor> {
  if (!/^([0-9a-f]{3,4}|[0-9a-f]{6}|[0-9a-f]{8})$/.test(digits)) {
    return failure('Invalid HEX format. Must be #RGB, #RGBA, #RRGGBB, or #RRGGBBAA');
  }
  const pairs = digits.length <= 4 ? digits.replace(/./g, '$&$&') : digits;
  const hasAlpha = pairs.length === 8;
  const block = parseInt(hasAlpha ? pairs : `${pairs}ff`, 16);
  const byte = (shift: number) => (block >>> shift) & 0xff;
  return success({ color: { red: byte(24), green: byte(16), blue: byte(8), alpha: byte(0) }, hasAlpha });
}
