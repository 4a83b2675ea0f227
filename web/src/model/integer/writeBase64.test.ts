import fc from 'fast-check';
import { expect, test } from 'vitest';
import { writeBase64 } from './writeBase64';

const DIGITS = '0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz+/';

function digitByDigit(number: bigint): string {
  const upper = number >> 6n;
  return (upper > 0n ? digitByDigit(upper) : '') + DIGITS[Number(number & 63n)];
}

test('writes the powers of two and their neighbours, also beyond 1024 bits', () => {
  for (let power = 1n; power < 1n << 1300n; power <<= 1n) {
    for (const number of [power - 1n, power, power + 1n]) expect(writeBase64(number)).toBe(digitByDigit(number));
  }
});

test('writes numbers of any length, one after the other', () => {
  const ofAnyLength = fc
    .integer({ min: 1, max: 1024 })
    .chain((bits) => fc.bigInt({ min: 0n, max: (1n << BigInt(bits)) - 1n }));
  fc.assert(
    fc.property(ofAnyLength, (number) => {
      expect(writeBase64(number)).toBe(digitByDigit(number));
    }),
    { numRuns: 2000 },
  );
});
