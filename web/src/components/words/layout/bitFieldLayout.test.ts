import { describe, expect, test } from 'vitest';
import { bitAt, bitFieldLayout, cellOf } from './bitFieldLayout';

const layouts = [8, 16, 32, 64, 128, 256, 512, 1024].flatMap((bits) =>
  [600, 1200].flatMap((box) =>
    [false, true].flatMap((labels) =>
      [0, 3].map((lanes) => ({
        name: `${bits} bits in ${box} pixels${labels ? ' with labels' : ''} under ${lanes} lines of names`,
        layout: bitFieldLayout(bits, (bits / 8) * 140, Math.min(box, (bits / 8) * 140), labels, lanes),
      })),
    ),
  ),
);

describe.each(layouts)('a bit field of $name', ({ layout }) => {
  test('finds every bit again in the middle and near the edges of its cell', () => {
    for (let bit = 0; bit < layout.bits; bit++) {
      const { x, y, width, height } = cellOf(layout, bit);
      for (const [across, down] of [
        [0.5, 0.5],
        [0.05, 0.05],
        [0.95, 0.95],
      ] as const) {
        expect(bitAt(layout, x + across * width, y + down * height)).toBe(bit);
      }
    }
  });

  test('finds the bit below a name', () => {
    const { lanesHeight } = layout;
    for (let bit = 0; bit < layout.bits; bit += 5) {
      const { x, y, width } = cellOf(layout, bit);
      expect(y).toBeGreaterThanOrEqual(lanesHeight);
      expect(bitAt(layout, x + width / 2, y - lanesHeight)).toBe(bit);
    }
  });

  test('keeps all cells inside and apart from each other', () => {
    for (let bit = 0; bit < layout.bits; bit++) {
      const { x, y, width, height } = cellOf(layout, bit);
      expect(x).toBeGreaterThanOrEqual(0);
      expect(x + width).toBeLessThanOrEqual(layout.width);
      expect(y + height).toBeLessThanOrEqual(layout.height);
      if (bit === 0 || bit % layout.bitsPerLine === 0) continue;
      expect(cellOf(layout, bit).x + width).toBeLessThanOrEqual(cellOf(layout, bit - 1).x + 1e-9);
    }
  });
});

test.each([
  { bits: 64, vertical: false },
  { bits: 128, vertical: true },
])('$bits bits are laid out in lines: $vertical', ({ bits, vertical }) => {
  expect(bitFieldLayout(bits, 2240, 1200, false).vertical).toBe(vertical);
});

test('a point outside gives the nearest bit', () => {
  const layout = bitFieldLayout(8, 140, 126, false);
  expect(bitAt(layout, -50, -50)).toBe(7);
  expect(bitAt(layout, 500, 500)).toBe(0);
});

test.each([
  { boxWidth: 1200, bitsPerLine: 64 },
  { boxWidth: 642, bitsPerLine: 32 },
  { boxWidth: 266, bitsPerLine: 16 },
  { boxWidth: 186, bitsPerLine: 8 },
])('wide words in $boxWidth pixels have $bitsPerLine bits in a line, each at least 12 pixels wide', (given) => {
  const layout = bitFieldLayout(1024, 17_920, given.boxWidth, false);
  expect(layout.bitsPerLine).toBe(given.bitsPerLine);
  expect(layout.cellWidth).toBeGreaterThanOrEqual(12);
});
