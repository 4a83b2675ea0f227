import fc from 'fast-check';
import { expect, test } from 'vitest';
import { decodeFloat } from './decodeFloat';
import { encodeFloat } from './encodeFloat';
import { floatFormatFor } from './floatFormats';

const view = new DataView(new ArrayBuffer(8));
const half = floatFormatFor(16)!;
const single = floatFormatFor(32)!;
const double = floatFormatFor(64)!;
const finite = fc.double({ noNaN: true, noDefaultInfinity: true });

test.each([
  { name: 'one', value: 1, word: 0x3c00n },
  { name: 'negative zero', value: -0, word: 0x8000n },
  { name: 'the largest', value: 65504, word: 0x7bffn },
  { name: 'just below halfway to the overflow', value: 65519.99, word: 0x7bffn },
  { name: 'halfway, to the even mantissa below', value: 2049, word: 0x6800n },
  { name: 'halfway, to the even mantissa above', value: 2051, word: 0x6802n },
  { name: 'a carry into the exponent', value: 4095.9, word: 0x6c00n },
  { name: 'the smallest subnormal', value: 2 ** -24, word: 0x0001n },
  { name: 'a carry from the subnormals to the normals', value: 2 ** -14 - 2 ** -26, word: 0x0400n },
  { name: 'halfway to the smallest', value: 2 ** -25, word: 0n },
  { name: 'a negative number too small', value: -(2 ** -30), word: 0x8000n },
])('a half float of $name', ({ value, word }) => {
  expect(encodeFloat(value, half)).toBe(word);
});

test.each([65520, -65520, 1e300])('%d overflows a half float', (value) => {
  expect(encodeFloat(value, half)).toBe('overflow');
});

test('bytes overflow from halfway beyond their largest number', () => {
  const byte = floatFormatFor(8)!;
  expect([encodeFloat(247.9, byte), encodeFloat(248, byte)]).toEqual([0x77n, 'overflow']);
});

test('every finite half float is encoded as the bits that it was decoded from', () => {
  for (let bits = 0; bits < 65536; bits++) {
    const value = decodeFloat(BigInt(bits), half);
    if (!Number.isFinite(value)) continue;
    if (encodeFloat(value, half) !== BigInt(bits)) expect.fail(`${bits.toString(16)} came back otherwise`);
  }
});

test('doubles of any size round as a DataView rounds them', () => {
  fc.assert(
    fc.property(fc.oneof(finite, fc.float({ noNaN: true, noDefaultInfinity: true })), (value) => {
      view.setFloat32(0, value);
      const rounded = Number.isFinite(view.getFloat32(0)) ? BigInt(view.getUint32(0)) : 'overflow';
      expect(encodeFloat(value, single)).toBe(rounded);
      view.setFloat16(0, value);
      expect(encodeFloat(value, half)).toBe(
        Number.isFinite(view.getFloat16(0)) ? BigInt(view.getUint16(0)) : 'overflow',
      );
      view.setFloat64(0, value);
      expect(encodeFloat(value, double)).toBe(view.getBigUint64(0));
    }),
    { numRuns: 20_000 },
  );
});

test('numbers near those of a half float round as a DataView rounds them', () => {
  for (let round = 0; round < 100_000; round++) {
    const value = (Math.random() - 0.5) * 2 ** (Math.random() * 42 - 26);
    view.setFloat16(0, value);
    if (encodeFloat(value, half) !== BigInt(view.getUint16(0))) expect.fail(`${value} is rounded otherwise`);
  }
});
