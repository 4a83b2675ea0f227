import { expect, test } from 'vitest';
import { definitionsFor } from '../../../model/sheet/numberDefinitions';
import { MinimapLayout } from './minimapLayout';
import { sheetGeometry } from './sheetGeometry';

const geometry = sheetGeometry({
  resolution: 1024,
  definitions: definitionsFor(1024),
  converters: undefined,
  viewWidth: 600,
  charWidth: 7.25,
});

test('no row is lower than 24 pixels, and all of them fill the map', () => {
  const { heights } = new MinimapLayout(geometry, 440);
  expect(Math.min(...heights)).toBeGreaterThanOrEqual(24);
  expect(heights.reduce((sum, each) => sum + each, 0)).toBeCloseTo(440);
});

test('rows share what there is where it is less than that', () => {
  const { heights } = new MinimapLayout(geometry, 90);
  expect(heights).toEqual(geometry.rows.map(() => 90 / geometry.rows.length));
});

test('positions go to the map and back', () => {
  const map = new MinimapLayout(geometry, 440);
  for (const [at, { height }] of geometry.rows.entries()) {
    const middle = geometry.tops[at]! + height / 2;
    expect(map.toSheet(map.toMap(middle))).toBeCloseTo(middle);
  }
  expect(map.toMap(-5)).toBe(0);
  expect(map.toSheet(9999)).toBeCloseTo(geometry.height);
});
