import { describe, expect, test } from 'vitest';
import { labFromRgb, oklabFromRgb, polar, rectangular, rgbFromLab, rgbFromOklab } from './labColors';
import type { Vec3 } from './vec3';

const lch = (rgb: Vec3) => polar(labFromRgb(rgb));
const oklch = (rgb: Vec3) => polar(oklabFromRgb(rgb));

// Values as style sheet references print them.
test.each([
  { name: 'LAB of red', actual: labFromRgb([1, 0, 0]), expected: [54.2905, 80.8049, 69.891], off: 1e-3 },
  { name: 'LAB of blue', actual: labFromRgb([0, 0, 1]), expected: [29.5683, 68.2874, -112.0297], off: 1e-3 },
  { name: 'LCH of red', actual: lch([1, 0, 0]), expected: [54.2905, 106.8372, 40.8576], off: 1e-3 },
  { name: 'OKLCH of red', actual: oklch([1, 0, 0]), expected: [0.62796, 0.25768, 29.234], off: 1e-3 },
  { name: 'OKLCH of lime', actual: oklch([0, 1, 0]), expected: [0.86644, 0.29483, 142.495], off: 1e-3 },
  { name: 'OKLCH of blue', actual: oklch([0, 0, 1]), expected: [0.45201, 0.31321, 264.052], off: 1e-3 },
  { name: 'LAB of white', actual: labFromRgb([1, 1, 1]), expected: [100, 0, 0], off: 1e-5 },
  { name: 'Oklab of white', actual: oklabFromRgb([1, 1, 1]), expected: [1, 0, 0], off: 1e-7 },
  { name: 'LAB of black', actual: labFromRgb([0, 0, 0]), expected: [0, 0, 0], off: 1e-12 },
])('$name is as published', ({ actual, expected, off }) => {
  for (const [position, value] of expected.entries()) expect(Math.abs(actual[position]! - value)).toBeLessThan(off);
});

describe.each([
  { name: 'LAB', to: labFromRgb, from: rgbFromLab },
  { name: 'Oklab', to: oklabFromRgb, from: rgbFromOklab },
])('$name and back', ({ to, from }) => {
  test('gives the same colour over a grid of the gamut', () => {
    for (let step = 0; step < 17 ** 3; step++) {
      const rgb: Vec3 = [(step % 17) / 16, (Math.floor(step / 17) % 17) / 16, Math.floor(step / 289) / 16];
      const back = rectangular(polar(to(rgb)));
      for (const [position, channel] of from(back).entries()) expect(channel).toBeCloseTo(rgb[position]!, 6);
    }
  });
});
