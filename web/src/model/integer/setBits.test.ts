import fc from 'fast-check';
import { expect, test } from 'vitest';
import { nextSetBit, setBits } from './setBits';

test('the bits that are set make up the number, the lowest first', () => {
  fc.assert(
    fc.property(fc.bigInt({ min: 0n, max: (1n << 1024n) - 1n }), (value) => {
      const bits = setBits(value);
      expect(bits.reduce((sum, bit) => sum + (1n << BigInt(bit)), 0n)).toBe(value);
      expect(bits.every((bit, place) => place === 0 || bit > bits[place - 1]!)).toBe(true);
    }),
  );
});

test.each([
  { from: undefined, step: 1 as const, bit: 3 },
  { from: undefined, step: -1 as const, bit: 190 },
  { from: 3, step: 1 as const, bit: 64 },
  { from: 10, step: 1 as const, bit: 64 },
  { from: 10, step: -1 as const, bit: 3 },
  { from: 190, step: 1 as const, bit: 3 },
  { from: 3, step: -1 as const, bit: 190 },
])('from $from by $step comes $bit, of bits 3, 64 and 190', ({ from, step, bit }) => {
  expect(nextSetBit((1n << 190n) | (1n << 64n) | (1n << 3n), from, step)).toBe(bit);
});

test('no bit comes next where none is set', () => {
  expect(nextSetBit(0n, 5, 1)).toBeUndefined();
});
