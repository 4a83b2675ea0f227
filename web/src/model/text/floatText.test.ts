import fc from 'fast-check';
import { describe, expect, test } from 'vitest';
import { decodeFloat } from '../float/decodeFloat';
import { floatFormatFor } from '../float/floatFormats';
import { nearestFloat } from './floatText';

describe('a text that is no integer', () => {
  test.each([
    ['3.14', 64, 0x40091eb851eb851fn],
    [' 1e5 ', 32, 0x47c35000n],
    ['-0.0', 32, 0x80000000n],
    ['0x1.8p3', 64, 0x4028000000000000n],
    ['inf', 16, 0x7c00n],
    ['NaN', 32, 0x7fc00000n],
  ])('%s is the nearest float of %i bits', (text, width, word) => {
    expect(nearestFloat(text, width)).toBe(word);
  });

  test.each(['12', '0xFACE', '', '.', 'e', '1.2.3', 'plain', '3.14 m'])('%j is no float', (text) => {
    expect(nearestFloat(text, 64)).toBeUndefined();
  });

  test('is none where it is too large, or where there is no such float', () => {
    expect(nearestFloat('1e9', 16)).toBeUndefined();
    expect(nearestFloat('1.5', 512)).toBeUndefined();
  });

  test('has the value that JavaScript reads', () => {
    fc.assert(
      fc.property(fc.double({ noNaN: true, noDefaultInfinity: true }), (value) => {
        const word = nearestFloat(value.toExponential(), 64)!;
        expect(decodeFloat(word, floatFormatFor(64)!)).toBe(Object.is(value, -0) ? 0 : value);
      }),
    );
  });
});
