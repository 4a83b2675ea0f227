import fc from 'fast-check';
import { expect, test } from 'vitest';
import { leadingDigits } from './leadingDigits';

test('gives the first digits of the number written out in full, with any precision to begin with', () => {
  const significand = fc.bigInt({ min: 1n, max: (1n << 237n) - 1n });
  const precision = fc.integer({ min: 64, max: 400 });
  fc.assert(
    fc.property(significand, fc.nat(5000), fc.integer({ min: 1, max: 30 }), precision, (value, scale, wanted, bits) => {
      const written = (value << BigInt(scale)).toString();
      const expected = { digits: written.slice(0, wanted), count: written.length };
      expect(leadingDigits(value, scale, wanted, bits)).toEqual(expected);
      expect(leadingDigits(value, scale, wanted)).toEqual(expected);
    }),
    { numRuns: 500 },
  );
});

test('is right at powers of ten and just below them', () => {
  for (let exponent = 0; exponent < 70; exponent++) {
    const power = 10n ** BigInt(exponent);
    expect(leadingDigits(power, 0, 20)).toEqual({ digits: power.toString().slice(0, 20), count: exponent + 1 });
    if (exponent === 0) continue;
    expect(leadingDigits(power - 1n, 0, 20)).toEqual({ digits: '9'.repeat(Math.min(20, exponent)), count: exponent });
  }
});

test('is right for the largest 256-bit float', () => {
  const significand = (1n << 237n) - 1n;
  const written = (significand << 261907n).toString();
  expect(leadingDigits(significand, 261907, 40)).toEqual({ digits: written.slice(0, 40), count: 78914 });
});
