import fc from 'fast-check';
import { expect, test } from 'vitest';
import { readWord, wordCount, writeWord } from './wordLayout';

test.each([
  { name: 'lowest byte', value: 0x1234n, width: 8, index: 0, word: 0x34n },
  { name: 'next byte', value: 0x1234n, width: 8, index: 1, word: 0x12n },
  { name: 'an odd width', value: 0b110_101_011n, width: 3, index: 1, word: 0b101n },
  { name: 'beyond the top', value: 0x1234n, width: 16, index: 3, word: 0n },
])('readWord: $name', ({ value, width, index, word }) => {
  expect(readWord(value, width, index)).toBe(word);
});

test.each([
  { resolution: 64, width: 8, count: 8 },
  { resolution: 1024, width: 1024, count: 1 },
  { resolution: 16, width: 32, count: 0 },
])('wordCount: $count words of $width bits in $resolution', ({ resolution, width, count }) => {
  expect(wordCount(resolution, width)).toBe(count);
});

const anyValue = fc.bigInt({ min: 0n, max: (1n << 1024n) - 1n });
const anyWidth = fc.integer({ min: 1, max: 256 });
const anyIndex = fc.integer({ min: 0, max: 128 });

test('writeWord changes the bits of its word and no others', () => {
  fc.assert(
    fc.property(anyValue, anyWidth, anyIndex, fc.bigInt(), (value, width, index, word) => {
      const after = writeWord(value, width, index, word);
      const reach = Math.max(1024, width * (index + 1));
      const bits = (number: bigint) => number.toString(2).padStart(reach, '0');
      const from = reach - width * (index + 1);
      const to = reach - width * index;
      expect(bits(after).slice(0, from)).toBe(bits(value).slice(0, from));
      expect(bits(after).slice(to)).toBe(bits(value).slice(to));
      expect(readWord(after, width, index)).toBe(BigInt.asUintN(width, word));
    }),
  );
});
