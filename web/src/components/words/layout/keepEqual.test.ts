import fc from 'fast-check';
import { expect, test } from 'vitest';
import { equalPartsKeeper, keepEqual } from './keepEqual';

const plainData = fc.jsonValue({ maxDepth: 4 });

test('what is kept is equal to what is there now, and what was there before where that is equal', () => {
  fc.assert(
    fc.property(plainData, plainData, (before, now) => {
      expect(keepEqual(before, now)).toEqual(now);
      expect(keepEqual(before, structuredClone(before))).toBe(before);
    }),
  );
});

test('parts that are equal are kept within one that is not', () => {
  const before = { rows: [{ bits: 8 }, { bits: 16 }], width: 1 };
  const kept = keepEqual(before, { rows: [{ bits: 8 }, { bits: 16 }], width: 2 });
  expect(kept.rows).toBe(before.rows);
  const [first, second] = keepEqual(before, { rows: [{ bits: 8 }, { bits: 32 }], width: 1 }).rows;
  expect(first).toBe(before.rows[0]);
  expect(second).toEqual({ bits: 32 });
});

test.each([
  { before: [1], now: { 0: 1 } },
  { before: { a: 1, b: undefined }, now: { a: 1 } },
  { before: { a: 1 }, now: { a: 1, b: undefined } },
  { before: { a: undefined }, now: { b: undefined } },
  { before: undefined, now: {} },
])('$before is not $now', ({ before, now }) => {
  expect(keepEqual<unknown>(before, now)).toStrictEqual(now);
});

test('each value is compared with the one before', () => {
  const keep = equalPartsKeeper<{ at: number }>();
  const [first, second] = [keep({ at: 1 }), keep({ at: 2 })];
  expect(keep({ at: 2 })).toBe(second);
  expect(keep({ at: 1 })).not.toBe(first);
});
