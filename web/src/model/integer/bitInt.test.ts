import fc from 'fast-check';
import { describe, expect, test } from 'vitest';
import { BitInt } from './bitInt';

describe('BitInt', () => {
  test('masks its value when it is made', () => {
    expect(new BitInt(0x1ffn, 8).value).toBe(0xffn);
    expect(new BitInt(-1n, 16).value).toBe(0xffffn);
  });

  test('drops the high bits when it gets narrower, and keeps its value when it gets wider', () => {
    const wide = new BitInt((1n << 127n) | (1n << 32n) | 5n, 128);
    expect(wide.withResolution(32)).toEqual(new BitInt(5n, 32));
    expect(new BitInt(0xffn, 8).withResolution(64)).toEqual(new BitInt(0xffn, 64));
  });

  test('reads and writes a word without touching the others', () => {
    const before = new BitInt(0x0123456789abcdefn, 64);
    const after = before.setWord(32, 1, 0xffffffffn);
    expect(after.value).toBe(0xffffffff89abcdefn);
    expect(after.getWord(32, 1)).toBe(0xffffffffn);
    expect(before.value).toBe(0x0123456789abcdefn);
  });

  test('masks a word that is written', () => {
    expect(new BitInt(0n, 32).setWord(8, 1, 0x1abn).value).toBe(0xab00n);
    expect(new BitInt(0n, 32).setWord(8, 3, -1n).value).toBe(0xff000000n);
  });

  test('flips single bits', () => {
    const value = new BitInt(0x0100n, 16);
    expect(value.toggleBit(8, 1, 7).value).toBe(0x8100n);
    expect(value.toggleBit(8, 1, 0).value).toBe(0n);
  });

  test.each([
    { name: 'shift left', after: (value: BitInt) => value.shiftLeft(8, 1, 1), word: 0x02n },
    { name: 'shift right with the top bit', after: (value: BitInt) => value.shiftRight(8, 1, 1), word: 0xc0n },
    { name: 'shift right with zeros', after: (value: BitInt) => value.shiftRightUnsigned(8, 1, 1), word: 0x40n },
    { name: 'not', after: (value: BitInt) => value.not(8, 1), word: 0x7en },
    { name: 'random', after: (value: BitInt) => value.random(8, 1, () => 0.5), word: 0x80n },
  ])('changes one word by $name', ({ after, word }) => {
    expect(after(new BitInt(0xabcd81efn, 32)).value).toBe(0xabcd00efn | (word << 8n));
  });

  test('draws random words by itself', () => {
    expect(new BitInt(0xffn, 8).random(8, 0).value).toBeLessThan(256n);
  });

  const value = new BitInt(0n, 64);
  test.each([
    { name: 'a negative index', access: () => value.getWord(8, -1), message: 'Index cannot be negative' },
    {
      name: 'a write at a negative index',
      access: () => value.setWord(8, -1, 0n),
      message: 'Index cannot be negative',
    },
    {
      name: 'a word past the top',
      access: () => value.getWord(32, 2),
      message: 'Word extraction would exceed bit resolution. Requested bits 64-95, but resolution is 64 bits',
    },
    {
      name: 'a word wider than the value',
      access: () => value.getWord(128, 0),
      message: 'Word extraction would exceed bit resolution. Requested bits 0-127, but resolution is 64 bits',
    },
    {
      name: 'a write past the top',
      access: () => value.setWord(16, 4, 0n),
      message: 'Word setting would exceed bit resolution. Requested bits 64-79, but resolution is 64 bits',
    },
    {
      name: 'a flip in a word past the top',
      access: () => value.toggleBit(8, 8, 0),
      message: 'Word setting would exceed bit resolution. Requested bits 64-71, but resolution is 64 bits',
    },
    {
      name: 'a bit past the word',
      access: () => value.toggleBit(8, 0, 8),
      message: 'Bit index 8 is out of range for 8-bit word',
    },
    {
      name: 'a negative bit',
      access: () => value.toggleBit(8, 0, -1),
      message: 'Bit index -1 is out of range for 8-bit word',
    },
  ])('raises a range error for $name', ({ access, message }) => {
    expect(access).toThrow(new RangeError(message));
  });

  test('stays below 2 ** resolution whatever is written', () => {
    const widths = fc.constantFrom(8, 16, 32, 64, 128, 256, 512, 1024);
    fc.assert(
      fc.property(fc.bigInt(), fc.bigInt(), widths, widths, fc.nat(), (start, word, resolution, width, seed) => {
        fc.pre(width <= resolution);
        const after = new BitInt(start, resolution).setWord(width, seed % (resolution / width), word);
        expect(after.value >= 0n && after.value < 1n << BigInt(resolution)).toBe(true);
      }),
    );
  });
});
