import fc from 'fast-check';
import { describe, expect, test } from 'vitest';
import type { Rgba } from './colorWord';
import { COLOR_NOTATIONS, type ColorNotation, formatColor, notationHasAlpha } from './formatColor';
import { parseColor } from './parseColor';

const orange: Rgba = { red: 255, green: 128, blue: 0, alpha: 128 };

test.each([
  { notation: 'HEX', text: '#ff8000' },
  { notation: 'HEXA', text: '#ff800080' },
  { notation: 'RGB', text: 'rgb(255, 128, 0)' },
  { notation: 'RGBA', text: 'rgba(255, 128, 0, 0.5)' },
  { notation: 'HSL', text: 'hsl(30.12, 100%, 50%)' },
  { notation: 'HSLA', text: 'hsla(30.12, 100%, 50%, 0.5)' },
  { notation: 'LCH', text: 'lch(67.817 87.58 58.709)' },
  { notation: 'LCHA', text: 'lch(67.817 87.58 58.709 / 0.5)' },
  { notation: 'LAB', text: 'lab(67.817 45.488 74.841)' },
  { notation: 'LABA', text: 'lab(67.817 45.488 74.841 / 0.5)' },
  { notation: 'HWB', text: 'hwb(30.12 0% 0%)' },
  { notation: 'HWBA', text: 'hwb(30.12 0% 0% / 0.5)' },
  { notation: 'OKLCH', text: 'oklch(0.73189 0.1858 52.985)' },
  { notation: 'OKLCHA', text: 'oklch(0.73189 0.1858 52.985 / 0.5)' },
  { notation: 'OKLAB', text: 'oklab(0.73189 0.11186 0.14836)' },
  { notation: 'OKLABA', text: 'oklab(0.73189 0.11186 0.14836 / 0.5)' },
] as const)('writes orange in $notation as $text', ({ notation, text }) => {
  expect(formatColor(orange, notation)).toBe(text);
});

test.each([
  { notation: 'OKLCH', text: 'oklch(1 0 0)' },
  { notation: 'LCH', text: 'lch(100 0 0)' },
  { notation: 'HSL', text: 'hsl(0, 0%, 100%)' },
  { notation: 'OKLAB', text: 'oklab(1 0 0)' },
] as const)('writes white in $notation without an accidental hue', ({ notation, text }) => {
  expect(formatColor({ red: 255, green: 255, blue: 255, alpha: 255 }, notation)).toBe(text);
});

test('a hue that rounds up to a full turn is written as 0', () => {
  const texts = Array.from({ length: 256 }, (_, byte) =>
    formatColor({ red: 255, green: byte, blue: byte, alpha: 255 }, 'HSL'),
  );
  expect(texts.filter((text) => !text.startsWith('hsl(0, '))).toEqual([]);
});

test('the notations come in pairs without and with alpha', () => {
  expect(COLOR_NOTATIONS).toHaveLength(16);
  expect(COLOR_NOTATIONS.filter(notationHasAlpha)).toEqual(COLOR_NOTATIONS.filter((_, place) => place % 2 === 1));
});

describe.each(COLOR_NOTATIONS.map((notation) => ({ notation })))('$notation', ({ notation }) => {
  test('gives the same bytes back over all values of each channel', () => {
    const levels = [0, 1, 127, 255];
    for (const channel of ['red', 'green', 'blue', 'alpha'] as const) {
      for (let byte = 0; byte < 256; byte++) {
        for (const other of levels) {
          expectSameBytes({ red: other, green: 255 - other, blue: other, alpha: 255, [channel]: byte }, notation);
        }
      }
    }
  });

  test('gives the same bytes back for any colour', () => {
    const byte = fc.integer({ min: 0, max: 255 });
    fc.assert(
      fc.property(fc.record({ red: byte, green: byte, blue: byte, alpha: byte }), (color) =>
        expectSameBytes(color, notation),
      ),
      { numRuns: 500 },
    );
  });
});

function expectSameBytes(color: Rgba, notation: ColorNotation): void {
  const hasAlpha = notationHasAlpha(notation);
  const expected = hasAlpha ? color : { ...color, alpha: 255 };
  expect(parseColor(formatColor(color, notation))).toEqual({ ok: true, value: { color: expected, hasAlpha } });
}
