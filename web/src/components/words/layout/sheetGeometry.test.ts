import { describe, expect, test } from 'vitest';
import { definitionsFor, withVisibility } from '../../../model/sheet/numberDefinitions';
import { carriedOver, partsInView, ROW_GAP, sheetGeometry, type SheetShape } from './sheetGeometry';

function geometry(resolution: number, viewWidth: number, changes: Partial<SheetShape> = {}) {
  const definitions = definitionsFor(resolution);
  return sheetGeometry({ resolution, definitions, converters: undefined, viewWidth, charWidth: 7.25, ...changes });
}

describe.each([8, 16, 32, 64, 128, 256, 512, 1024])('a sheet of %i bits', (resolution) => {
  const { rows, tops, width } = geometry(resolution, 1200);

  test('has rows of one width, so that words stand below those that hold them', () => {
    for (const row of rows) expect(row.count * row.blockWidth).toBe(width);
  });

  test('gives every word at least 140 pixels for each byte', () => {
    for (const row of rows) expect(row.blockWidth).toBeGreaterThanOrEqual((row.bits / 8) * 140);
  });

  test('has its rows below each other', () => {
    for (const [at, top] of tops.slice(1).entries()) {
      expect(top).toBeGreaterThanOrEqual(tops[at]! + rows[at]!.height);
    }
  });
});

test('rows overflow where their words need more than the view has', () => {
  expect(geometry(64, 1120).overflows).toBe(false);
  expect(geometry(64, 1119).overflows).toBe(true);
});

test('hidden rows take no room', () => {
  const definitions = withVisibility(definitionsFor(64), { type: 'integer', bits: 16 }, false);
  const { rows } = geometry(64, 1200, { definitions });
  expect(rows.map(({ shortLabel }) => shortLabel)).toEqual(['I64', 'I32', 'I8', 'C32']);
});

test('every field is as high as its longest text needs', () => {
  const [widest] = geometry(1024, 1200).rows;
  const perLine = (1200 - 14 - 25 - 12) / 7.25;
  expect(widest!.fields.places.map(({ lines }) => lines)).toEqual([
    2,
    1024 / 64, // as the bits do
    Math.ceil(342 / perLine),
    Math.ceil(256 / perLine),
  ]);
});

test('a text in base 2 has lines of whole bytes where it is wider than the window', () => {
  const [widest, half, quarter] = geometry(64, 260).rows;
  const columnsOf = (row: typeof widest) => row!.fields.places.map(({ lines, columns }) => [lines, columns?.count]);
  expect(columnsOf(widest)[1]).toEqual([4, 16]);
  expect(columnsOf(half)[1]).toEqual([2, 16]);
  expect(columnsOf(quarter)[1]).toEqual([1, undefined]);
});

test('a position goes with its row when rows get other heights', () => {
  const [wide, narrow] = [geometry(1024, 1200), geometry(1024, 700)];
  for (const [place, { height }] of wide.rows.entries()) {
    const middle = carriedOver(wide.tops[place]! + (height + ROW_GAP) / 2, wide, narrow);
    expect(middle).toBeCloseTo(narrow.tops[place]! + (narrow.rows[place]!.height + ROW_GAP) / 2);
    expect(carriedOver(middle, narrow, wide)).toBeCloseTo(wide.tops[place]! + (height + ROW_GAP) / 2);
  }
});

test('a position whose row has gone is where the next one begins', () => {
  const without = (bits: number) => withVisibility(definitionsFor(64), { type: 'integer', bits }, false);
  const whole = geometry(64, 1200);
  const cut = geometry(64, 1200, { definitions: without(16) });
  expect(carriedOver(whole.tops[2]! + 30, whole, cut)).toBe(cut.tops[2]);
  expect(cut.rows[2]!.bits).toBe(8);
});

test('a position stays what it is when no row from there on is left', () => {
  const [wide, narrow] = [geometry(64, 1200), geometry(8, 1200)];
  expect(wide.rows.at(-1)!.type).toBe('color32');
  expect(carriedOver(wide.tops.at(-1)! + 9, wide, narrow)).toBe(wide.tops.at(-1)! + 9);
  expect(carriedOver(5, { ...wide, rows: [], tops: [] }, wide)).toBe(5);
});

test('a float view needs a format of its width', () => {
  const { rows } = geometry(512, 1200, { converters: ['FLOAT'] });
  expect(rows.map(({ bits, converters }) => [bits, converters.length])).toEqual([
    [512, 0],
    [256, 1],
    [128, 1],
    [64, 1],
    [32, 1],
    [16, 1],
    [8, 1],
    [32, 1],
  ]);
});

test.each([
  { name: 'at the start', scrolled: 0, parts: [0, 5] },
  { name: 'in the middle', scrolled: 1000, parts: [9, 15] },
  { name: 'at the end', scrolled: 1600, parts: [15, 19] },
  { name: 'beyond the end', scrolled: 9999, parts: [98, 19] },
])('parts in view $name', ({ scrolled, parts }) => {
  expect(partsInView(20, 100, scrolled, 500, 100)).toEqual(parts);
});
