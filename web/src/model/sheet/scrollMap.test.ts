import { expect, test } from 'vitest';
import { ScrollMap } from './scrollMap';

test('a row is scrolled and the others stay', () => {
  const scrolled = ScrollMap.empty.withRow('integer-8', 40).withRow('integer-16', 60).withRow('integer-8', 20);
  expect([...scrolled.rows]).toEqual([
    ['integer-8', 20],
    ['integer-16', 60],
  ]);
  expect(scrolled.vertical).toBeUndefined();
});

test('rows that are locked to each other come to one position', () => {
  const scrolled = ScrollMap.empty.withRow('color-32', 10).withRows(['integer-8', 'color-32'], 70);
  expect(Object.fromEntries(scrolled.rows)).toEqual({ 'integer-8': 70, 'color-32': 70 });
});

test('the sheet is scrolled and its rows stay', () => {
  const scrolled = ScrollMap.empty.withRow('integer-8', 40).withVertical(300);
  expect(scrolled.vertical).toBe(300);
  expect(scrolled.withRow('integer-8', 50).vertical).toBe(300);
  expect(scrolled.rows.get('integer-8')).toBe(40);
});

test('where a sheet was before is still known', () => {
  const before = ScrollMap.empty.withRow('integer-8', 40);
  before.withRow('integer-8', 90).withVertical(5);
  expect([before.rows.get('integer-8'), before.vertical]).toEqual([40, undefined]);
  expect(ScrollMap.empty.rows.size).toBe(0);
});
