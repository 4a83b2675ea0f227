import fc from 'fast-check';
import { describe, expect, test } from 'vitest';
import {
  holds,
  invertRange,
  rangeBetween,
  rangeMask,
  rangeWidth,
  readRange,
  sharedBits,
  writeRange,
  writtenRange,
} from './bitRange';

const WIDTH = 1024;
const anyValue = fc.bigInt({ min: 0n, max: (1n << BigInt(WIDTH)) - 1n });
const anyRange = fc.tuple(fc.nat(WIDTH - 1), fc.nat(WIDTH - 1)).map(([a, b]) => rangeBetween(a, b));

/** Bits from hi down to lo as text, by the digits of the whole value: independent of shifts and masks. */
const digitsOf = (value: bigint, { hi, lo }: { hi: number; lo: number }) =>
  value
    .toString(2)
    .padStart(WIDTH, '0')
    .slice(WIDTH - 1 - hi, WIDTH - lo);

describe('a range of bits', () => {
  test('reads what stands at its places', () => {
    fc.assert(
      fc.property(anyValue, anyRange, (value, range) => {
        expect(readRange(value, range)).toBe(BigInt(`0b${digitsOf(value, range)}`));
        expect((value & rangeMask(range)) >> BigInt(range.lo)).toBe(readRange(value, range));
      }),
    );
  });

  test('takes a number and leaves all other bits as they are', () => {
    fc.assert(
      fc.property(anyValue, anyRange, anyValue, (value, range, number) => {
        const written = writeRange(value, range, number);
        const mask = rangeMask(range);
        expect(readRange(written, range)).toBe(number & (mask >> BigInt(range.lo)));
        expect(written & ~mask).toBe(value & ~mask);
        expect(writeRange(written, range, readRange(value, range))).toBe(value);
      }),
    );
  });

  test('takes a negative number as its two’s complement', () => {
    expect(writeRange(0n, { hi: 23, lo: 12 }, -1n)).toBe(0x00fff000n);
  });

  test('is inverted without another bit changing, and twice is as before', () => {
    fc.assert(
      fc.property(anyValue, anyRange, (value, range) => {
        const inverted = invertRange(value, range);
        expect(inverted ^ value).toBe(rangeMask(range));
        expect(invertRange(inverted, range)).toBe(value);
      }),
    );
  });

  test('has as many ones in its mask as it is wide, also across lines and words', () => {
    fc.assert(
      fc.property(anyRange, (range) => {
        const ones = rangeMask(range).toString(2).replaceAll('0', '').length;
        expect(ones).toBe(rangeWidth(range));
        expect(rangeMask({ hi: range.hi, lo: range.lo }).toString(2).length).toBe(range.hi + 1);
      }),
    );
  });

  test('shares with another exactly what both masks have', () => {
    fc.assert(
      fc.property(anyRange, anyRange, (a, b) => {
        const shared = sharedBits(a, b);
        expect(shared ? rangeMask(shared) : 0n).toBe(rangeMask(a) & rangeMask(b));
      }),
    );
  });

  test('shares the lower end of one with the upper end of another, and nothing with one beside it', () => {
    expect(sharedBits({ hi: 11, lo: 4 }, { hi: 7, lo: 0 })).toEqual({ hi: 7, lo: 4 });
    expect(sharedBits({ hi: 11, lo: 8 }, { hi: 7, lo: 0 })).toBeUndefined();
    expect(sharedBits({ hi: 7, lo: 0 }, { hi: 11, lo: 8 })).toBeUndefined();
  });

  test('is written with both ends, or as one bit', () => {
    expect(writtenRange({ hi: 23, lo: 12 })).toBe('[23:12]');
    expect(writtenRange({ hi: 37, lo: 37 })).toBe('[37]');
  });

  test('holds another when it shares all bits of that one', () => {
    fc.assert(
      fc.property(anyRange, anyRange, (outer, inner) => {
        const missing = rangeMask(inner) & ~rangeMask(outer);
        expect(holds(outer, inner)).toBe(missing === 0n);
        expect(holds(outer, outer)).toBe(true);
      }),
    );
  });
});
