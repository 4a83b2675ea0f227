import { expect, test } from 'vitest';
import { hslFromRgb, hwbFromRgb, rgbFromHsl, rgbFromHwb } from './hueColors';
import type { Vec3 } from './vec3';

const rounded = (vector: Vec3) => vector.map((number) => Number(number.toFixed(3)));

test.each([
  { name: 'red', rgb: [1, 0, 0], hsl: [0, 100, 50], hwb: [0, 0, 0] },
  { name: 'yellow', rgb: [1, 1, 0], hsl: [60, 100, 50], hwb: [60, 0, 0] },
  { name: 'lime', rgb: [0, 1, 0], hsl: [120, 100, 50], hwb: [120, 0, 0] },
  { name: 'blue', rgb: [0, 0, 1], hsl: [240, 100, 50], hwb: [240, 0, 0] },
  { name: 'a pink with its hue below 360', rgb: [1, 0.5, 0.75], hsl: [330, 100, 75], hwb: [330, 50, 0] },
  { name: 'a dull orange', rgb: [0.6, 0.4, 0.2], hsl: [30, 50, 40], hwb: [30, 20, 40] },
  { name: 'white', rgb: [1, 1, 1], hsl: [0, 0, 100], hwb: [0, 100, 0] },
  { name: 'black', rgb: [0, 0, 0], hsl: [0, 0, 0], hwb: [0, 0, 100] },
  { name: 'grey', rgb: [0.5, 0.5, 0.5], hsl: [0, 0, 50], hwb: [0, 50, 50] },
] as const)('$name in HSL and HWB, and back', ({ rgb, hsl, hwb }) => {
  expect(rounded(hslFromRgb(rgb))).toEqual(hsl);
  expect(rounded(hwbFromRgb(rgb))).toEqual(hwb);
  expect(rounded(rgbFromHsl(hsl))).toEqual(rgb);
  expect(rounded(rgbFromHwb(hwb))).toEqual(rgb);
});

test('more whiteness and blackness than there is room for gives a grey in their ratio', () => {
  expect(rounded(rgbFromHwb([120, 60, 100]))).toEqual([0.375, 0.375, 0.375]);
});
