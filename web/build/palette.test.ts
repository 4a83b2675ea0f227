import { describe, expect, test } from 'vitest';
import { palettise } from './palette';

/** A row of opaque greys. */
const greys = (...levels: number[]) => new Uint8Array(levels.flatMap((level) => [level, level, level, 255]));

describe('palettise', () => {
  test('keeps every colour when there is room', () => {
    const { palette, indices } = palettise(greys(0, 255, 90, 255), 16);
    expect(indices.map((index) => palette[index!]![0])).toEqual([0, 255, 90, 255]);
    expect(palette.length).toBe(3);
  });

  test('never uses more colours than allowed, and takes near ones', () => {
    const levels = Array.from({ length: 256 }, (_, i) => i);
    const { palette, indices } = palettise(greys(...levels), 16);
    expect(palette.length).toBe(16);
    indices.forEach((index, level) => expect(Math.abs(palette[index!]![0] - level)).toBeLessThanOrEqual(9));
  });

  test('makes pixels transparent that are less than half opaque', () => {
    const { palette, indices } = palettise(new Uint8Array([9, 9, 9, 127, 9, 9, 9, 128]), 16);
    expect(indices).toEqual([null, 0]);
    expect(palette).toEqual([[9, 9, 9]]);
  });

  test('finds nothing in an empty picture', () => {
    expect(palettise(new Uint8Array([1, 2, 3, 0]), 16)).toEqual({ palette: [], indices: [null] });
  });

  test('splits a box whose median colour fills one half', () => {
    const { indices } = palettise(greys(0, 200, 200, 200), 2);
    expect(new Set(indices).size).toBe(2);
  });
});
