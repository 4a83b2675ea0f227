import fc from 'fast-check';
import { expect, test } from 'vitest';
import { readDigits } from './readDigits';

const DIGITS = '0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ+/';

const digitsOfAnyBase = fc.integer({ min: 2, max: 64 }).chain((base) =>
  fc.record({
    base: fc.constant(base),
    digits: fc.array(fc.nat(base - 1), { minLength: 1, maxLength: 300 }),
  }),
);

test('adds digits up in every base, leading zeros included', () => {
  fc.assert(
    fc.property(digitsOfAnyBase, ({ base, digits }) => {
      const text = digits.map((digit) => DIGITS[digit]).join('');
      const sum = digits.reduce((total, digit) => total * BigInt(base) + BigInt(digit), 0n);
      expect(readDigits(text, base)).toBe(sum);
    }),
    { numRuns: 2000 },
  );
});

test('reads a text far longer than a word', () => {
  expect(readDigits(`1${'0'.repeat(20_000)}`, 62)).toBe(62n ** 20_000n);
});
