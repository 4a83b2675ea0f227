import { failure, type Result, success } from '../result';
import type { ColorComponent, ColorSpace } from './colorSpaces';
import type { Rgba } from './colorWord';

/** A colour that was read. Without an alpha in the text it is opaque. */
export interface ParsedColor {
  readonly color: Rgba;
  readonly hasAlpha: boolean;
}

// Each digit can be read in one way only, so that long numbers with a stray character are refused at once.
const NUMBER = /^([+-]?(?:\d+(?:\.\d*)?|\.\d+)(?:e[+-]?\d+)?)(%|deg|grad|rad|turn)?$/;

const DEGREES_PER_UNIT: Record<string, number> = { deg: 1, grad: 0.9, rad: 180 / Math.PI, turn: 360 };

/**
 * Reads a functional notation: three values separated by blanks, with a slash before the alpha where there is one; or
 * separated by commas, the alpha being the fourth value. Commas and a slash do not go together.
 * The failures of every notation are worded like those of RGB.
 * @param text - in lower case, no blanks around it, beginning with the notation's name
 */
export function parseColorFunction(text: string, space: ColorSpace): Result<ParsedColor> {
  const name = space.name.toLowerCase();
  const badFormat = failure(`${space.name} color must be in format: ${name}(...) or ${name}a(...) with 3 or 4 values`);
  const inner = new RegExp(`^${name}a?\\((.*)\\)$`).exec(text)?.[1]?.trim();
  if (inner === undefined || (inner.includes(',') && inner.includes('/'))) return badFormat;

  const { colorTexts, alphaTexts } = splitValues(inner);
  if (alphaTexts.length > 1) return failure(`${space.name} with alpha must have exactly one / separator`);
  const alpha = alphaTexts.length === 0 ? 1 : readAlpha(alphaTexts[0]!);
  if (alpha === undefined) return failure('Alpha value must be 0-1 or 0%-100%');
  if (colorTexts.length !== 3) return failure(`${space.name} must have exactly 3 color values`);

  const values: number[] = [];
  for (const [position, component] of space.components.entries()) {
    const read = readComponent(colorTexts[position]!, component);
    if (read === undefined) return badFormat;
    if (read.refusal !== undefined) return failure(read.refusal);
    values.push(read.value);
  }
  const rgb = space.toRgb(values as [number, number, number]);
  // Numbers far beyond any colour leave nothing that could be clamped.
  if (rgb.some(Number.isNaN)) return badFormat;
  const color = { red: byteOf(rgb[0]), green: byteOf(rgb[1]), blue: byteOf(rgb[2]), alpha: byteOf(alpha) };
  return success({ color, hasAlpha: alphaTexts.length > 0 });
}

function splitValues(inner: string): { colorTexts: string[]; alphaTexts: string[] } {
  if (inner.includes(',')) {
    const texts = inner.split(',').map((each) => each.trim());
    return texts.length === 4
      ? { colorTexts: texts.slice(0, 3), alphaTexts: texts.slice(3) }
      : { colorTexts: texts, alphaTexts: [] };
  }
  const [colors, ...alphaTexts] = inner.split('/').map((each) => each.trim());
  return { colorTexts: colors!.split(' ').filter((each) => each !== ''), alphaTexts };
}

function readAlpha(text: string): number | undefined {
  const [, digits, unit] = NUMBER.exec(text) ?? [];
  if (digits === undefined || (unit !== undefined && unit !== '%')) return undefined;
  const alpha = Number(digits) / (unit === '%' ? 100 : 1);
  return alpha >= 0 && alpha <= 1 ? alpha : undefined;
}

function readComponent(text: string, component: ColorComponent): { value: number; refusal?: string } | undefined {
  const [, digits, unit] = NUMBER.exec(text) ?? [];
  const number = Number(digits);
  if (!Number.isFinite(number)) return undefined;
  if (component.isHue) {
    if (unit === '%') return undefined;
    const degrees = (number * DEGREES_PER_UNIT[unit ?? 'deg']!) % 360;
    return { value: degrees < 0 ? degrees + 360 : degrees };
  }
  if (unit !== undefined && unit !== '%') return undefined;
  const isPercentage = unit === '%';
  const value = isPercentage ? (number / 100) * component.hundredPercent : number;
  return { value, refusal: component.refusal(value, isPercentage) };
}

function byteOf(fraction: number): number {
  return Math.round(Math.min(Math.max(fraction, 0), 1) * 255);
}
