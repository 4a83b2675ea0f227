import fc from 'fast-check';
import { expect, test } from 'vitest';
import { formatInteger, formatNumber } from './formatInteger';

test.each([
  { name: 'zero', word: 0n, base: 62, width: 8, signed: false, text: '0' },
  { name: 'signed zero', word: 0n, base: 10, width: 8, signed: true, text: '0' },
  { name: 'an unsigned byte', word: 255n, base: 10, width: 8, signed: false, text: '255' },
  { name: 'minus one in a byte', word: 255n, base: 10, width: 8, signed: true, text: '-1' },
  { name: 'the least signed byte', word: 128n, base: 10, width: 8, signed: true, text: '-128' },
  { name: 'the greatest signed byte', word: 127n, base: 10, width: 8, signed: true, text: '127' },
  { name: 'a signed word in base 16', word: 255n, base: 16, width: 8, signed: true, text: 'FF' },
  { name: 'upper-case letters', word: 35n, base: 36, width: 8, signed: false, text: 'Z' },
  { name: 'digit value 10 above base 36', word: 10n, base: 37, width: 8, signed: false, text: 'A' },
  { name: 'digit value 36', word: 36n, base: 37, width: 8, signed: false, text: 'a' },
  { name: 'the last digits of base 64', word: 0xffen, base: 64, width: 16, signed: false, text: '/+' },
])('writes $name as $text', ({ word, base, width, signed, text }) => {
  expect(formatInteger(word, base, width, signed)).toBe(text);
});

test.each([1, 65, 0, -2, 2.5, NaN])('refuses base %d', (base) => {
  expect(() => formatInteger(1n, base, 8)).toThrow(
    new RangeError(`Base must be an integer between 2 and 64, got: ${base}`),
  );
});

test('writes negative numbers with a minus sign in every base', () => {
  expect(formatNumber(-128n, 16)).toBe('-80');
  expect(formatNumber(-63n, 64)).toBe('-/');
});

const DIGITS = '0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz+/';

test('the digits of every base add up to the number', () => {
  const anyWord = fc.oneof(fc.bigInt({ min: 0n, max: (1n << 1024n) - 1n }), fc.bigInt({ min: 0n, max: 1n << 70n }));
  fc.assert(
    fc.property(anyWord, fc.integer({ min: 2, max: 64 }), (word, base) => {
      const text = formatInteger(word, base, 1024);
      const sum = [...text].reduce((total, digit) => total * BigInt(base) + BigInt(DIGITS.indexOf(digit)), 0n);
      expect(sum).toBe(word);
      expect(text).toMatch(word === 0n ? /^0$/ : /^[^0]/);
    }),
    { numRuns: 2000 },
  );
});

test('words around the powers of every base are written in full', () => {
  for (let base = 2; base <= 64; base++) {
    for (let power = BigInt(base); power < 1n << 1024n; power *= BigInt(base)) {
      const places = formatInteger(power, base, 1024);
      expect(places).toMatch(/^10+$/);
      expect(formatInteger(power - 1n, base, 1024)).toBe(DIGITS[base - 1]!.repeat(places.length - 1));
    }
  }
});
