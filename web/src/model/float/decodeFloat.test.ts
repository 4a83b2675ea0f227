import { expect, test } from 'vitest';
import { randomWord } from '../integer/wordOperations';
import { decodeFloat } from './decodeFloat';
import { floatFormatFor } from './floatFormats';

const view = new DataView(new ArrayBuffer(8));
const half = floatFormatFor(16)!;
const single = floatFormatFor(32)!;
const double = floatFormatFor(64)!;

test('all 65,536 half floats are what a DataView reads', () => {
  for (let bits = 0; bits < 65536; bits++) {
    view.setUint16(0, bits);
    // Compared by hand: an expectation for each of the many numbers would take most of the time.
    if (Object.is(decodeFloat(BigInt(bits), half), view.getFloat16(0))) continue;
    expect.fail(`${bits.toString(16)} is read as ${decodeFloat(BigInt(bits), half)}, not ${view.getFloat16(0)}`);
  }
});

test.each([
  {
    name: 'single',
    format: single,
    width: 32,
    write: (word: bigint) => view.setUint32(0, Number(word)),
    read: () => view.getFloat32(0),
  },
  {
    name: 'double',
    format: double,
    width: 64,
    write: (word: bigint) => view.setBigUint64(0, word),
    read: () => view.getFloat64(0),
  },
])(
  'a million random $name floats are what a DataView reads',
  ({ format, width, write, read }) => {
    for (let round = 0; round < 1_000_000; round++) {
      // Now and then without exponent bits, so that subnormals are among them.
      const word = randomWord(width) >> (round % 8 === 0 ? 12n : 0n);
      write(word);
      if (Object.is(decodeFloat(word, format), read())) continue;
      expect.fail(`${word.toString(16)} is read as ${decodeFloat(word, format)}, not ${read()}`);
    }
  },
  60_000,
);

test.each(['E4M3', 'E5M2'] as const)('all 256 patterns of %s are what its definition says', (standard) => {
  const [mantissaBits, bias] = standard === 'E4M3' ? [3, 7] : [2, 15];
  for (let bits = 0; bits < 256; bits++) {
    const exponent = (bits & 0x7f) >> mantissaBits;
    const fraction = (bits % 2 ** mantissaBits) / 2 ** mantissaBits;
    const sign = bits < 128 ? 1 : -1;
    const finite = exponent === 0 ? fraction * 2 ** (1 - bias) : (1 + fraction) * 2 ** (exponent - bias);
    const special = fraction === 0 ? sign * Infinity : NaN;
    const expected = exponent === 2 * bias + 1 ? special : sign * finite;
    expect(decodeFloat(BigInt(bits), floatFormatFor(8, standard)!)).toBe(expected);
  }
});

test('the largest finite bytes are 240 and 57344', () => {
  expect(decodeFloat(0x77n, floatFormatFor(8, 'E4M3')!)).toBe(240);
  expect(decodeFloat(0x7bn, floatFormatFor(8, 'E5M2')!)).toBe(57344);
});
