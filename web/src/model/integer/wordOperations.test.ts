import fc from 'fast-check';
import { expect, test } from 'vitest';
import { allBits, bitwiseNot, randomWord, shiftLeft, shiftRight, shiftRightUnsigned } from './wordOperations';

const wordOfAnyWidth = fc
  .constantFrom(8, 16, 32, 64, 128, 256, 512, 1024)
  .chain((width) => fc.record({ width: fc.constant(width), word: fc.bigInt({ min: 0n, max: allBits(width) }) }));
const anyCount = fc.integer({ min: 0, max: 1100 });

const asBits = (word: bigint, width: number) => word.toString(2).padStart(width, '0');
const fromBits = (bits: string) => BigInt(`0b${bits}`);

test('shifts do what moving the characters of a bit string does', () => {
  fc.assert(
    fc.property(wordOfAnyWidth, anyCount, ({ word, width }, count) => {
      const bits = asBits(word, width);
      const kept = Math.min(count, width);
      expect(shiftLeft(word, width, count)).toBe(fromBits(bits.slice(kept) + '0'.repeat(kept)));
      expect(shiftRightUnsigned(word, width, count)).toBe(fromBits('0'.repeat(kept) + bits.slice(0, width - kept)));
      expect(shiftRight(word, width, count)).toBe(fromBits(bits[0]!.repeat(kept) + bits.slice(0, width - kept)));
    }),
  );
});

test('not swaps every bit', () => {
  fc.assert(
    fc.property(wordOfAnyWidth, ({ word, width }) => {
      const swapped = [...asBits(word, width)].map((bit) => (bit === '0' ? '1' : '0')).join('');
      expect(bitwiseNot(word, width)).toBe(fromBits(swapped));
    }),
  );
});

test('a right shift repeats the top bit of an unsigned byte too', () => {
  expect(shiftRight(0x80n, 8, 1)).toBe(0xc0n);
  expect(shiftRightUnsigned(0x80n, 8, 1)).toBe(0x40n);
});

test('an absurd shift count empties the word', () => {
  expect(shiftLeft(1n, 1024, 2 ** 52)).toBe(0n);
  expect(shiftRight(1n << 1023n, 1024, 2 ** 52)).toBe(allBits(1024));
});

test.each([
  { width: 8, draws: [0.5], word: 0x80n },
  { width: 32, draws: [0.999999999999], word: 0xffffffffn },
  { width: 64, draws: [0.5, 0.25], word: 0x80000000_40000000n },
  { width: 40, draws: [0.5, 0.5], word: 0x80000000_80n },
])('a random word of $width bits takes $draws.length draws, most significant first', ({ width, draws, word }) => {
  const left = [...draws];
  expect(randomWord(width, () => left.shift()!)).toBe(word);
  expect(left).toEqual([]);
});

test('random words reach every bit and stay in the word', () => {
  for (const width of [8, 16, 32, 64, 128, 1024]) {
    let seen = 0n;
    for (let round = 0; round < 200; round++) seen |= randomWord(width);
    expect(seen).toBe(allBits(width));
  }
});
