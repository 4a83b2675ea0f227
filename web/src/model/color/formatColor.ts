import { COLOR_SPACES, type ColorSpace } from './colorSpaces';
import type { Rgba } from './colorWord';
import type { Vec3 } from './vec3';

type NotationFamily = 'HEX' | (typeof COLOR_SPACES)[number]['name'];
export type ColorNotation = NotationFamily | `${NotationFamily}A`;

const FAMILIES: readonly NotationFamily[] = ['HEX', ...COLOR_SPACES.map(({ name }) => name)];

/** The notations to choose from, in their order. Those that end in A write the alpha too. */
export const COLOR_NOTATIONS: readonly ColorNotation[] = FAMILIES.flatMap((family) => [family, `${family}A` as const]);

export function notationHasAlpha(notation: ColorNotation): boolean {
  return notation.endsWith('A');
}

/**
 * Writes a colour so that a style sheet understands it and reading it gives the same bytes back: RGB and HSL with commas,
 * the later notations with blanks. Numbers are rounded, without trailing zeros. A grey has the hue 0.
 */
export function formatColor(color: Rgba, notation: ColorNotation): string {
  const hasAlpha = notationHasAlpha(notation);
  const family = hasAlpha ? notation.slice(0, -1) : notation;
  if (family === 'HEX') return formatHex(color, hasAlpha);
  return formatFunction(
    color,
    COLOR_SPACES.find(({ name }) => name === family)!,
    hasAlpha,
  );
}

function formatHex({ red, green, blue, alpha }: Rgba, hasAlpha: boolean): string {
  const bytes = hasAlpha ? [red, green, blue, alpha] : [red, green, blue];
  return `#${bytes.map((byte) => byte.toString(16).padStart(2, '0')).join('')}`;
}

function formatFunction(color: Rgba, space: ColorSpace, hasAlpha: boolean): string {
  const values = space.fromRgb([color.red / 255, color.green / 255, color.blue / 255]);
  const written = writeComponents(values, space).join(space.separator);
  const name = space.name.toLowerCase();
  if (!hasAlpha) return `${name}(${written})`;
  const alpha = writeAlpha(color.alpha);
  return space.separator === ', ' ? `${name}a(${written}, ${alpha})` : `${name}(${written} / ${alpha})`;
}

function writeComponents(values: Vec3, { components }: ColorSpace): string[] {
  const written = components.map(({ places, isHue }, position) => {
    const rounded = Number(values[position]!.toFixed(places));
    return isHue ? rounded % 360 : rounded;
  });
  // Without chroma the angle is an accident of the arithmetic.
  if (components[2].isHue && written[1] === 0) written[2] = 0;
  return written.map((value, position) => `${value}${components[position]!.suffix}`);
}

// Two places where they determine the byte, as style sheets are usually written, otherwise three.
function writeAlpha(byte: number): string {
  const short = Number((byte / 255).toFixed(2));
  return `${Math.round(short * 255) === byte ? short : Number((byte / 255).toFixed(3))}`;
}
