import { describe, expect, test } from 'vitest';
import { randomWord } from '../integer/wordOperations';
import { exactDecimal, hexFloat } from './floatTexts';
import { floatNumber, floatValue } from './floatValue';
import { type InspectedFormat, inspectedFormats } from './inspectedFormats';

const [half] = inspectedFormats(16);
const [double] = inspectedFormats(64);
const [quad] = inspectedFormats(128);
const [octuple] = inspectedFormats(256);

const exact = (word: bigint, { format, ...rest }: InspectedFormat) =>
  exactDecimal(floatValue(word, { format, ...rest }));
const hexOf = (word: bigint, inspected: InspectedFormat) => hexFloat(floatValue(word, inspected), inspected.format);

function bitsOf(value: number): bigint {
  const view = new DataView(new ArrayBuffer(8));
  view.setFloat64(0, value);
  return view.getBigUint64(0);
}

describe('the exact decimal', () => {
  test.each([
    { value: 0.1, text: '0.1000000000000000055511151231257827021181583404541015625' },
    { value: 1, text: '1.0' },
    { value: -0, text: '-0.0' },
    { value: -2.5, text: '-2.5' },
    { value: 1e23, text: '99999999999999991611392.0' },
    { value: -Infinity, text: '-Infinity' },
    { value: NaN, text: 'NaN' },
  ])('of the double $value is $text', ({ value, text }) => {
    expect(exact(bitsOf(value), double!)).toBe(text);
  });

  test('of every half float is that number and no other', () => {
    for (let bits = 0; bits < 65536; bits++) {
      const number = floatNumber(BigInt(bits), half!);
      if (!Number.isFinite(number)) continue;
      const [, whole, fraction] = /^-?(\d+)\.(\d+)$/.exec(exact(BigInt(bits), half!))!;
      // Every half float is a multiple of 2 ** -24.
      const units = BigInt(Math.abs(number) * 2 ** 24);
      const isSame = BigInt(whole! + fraction!) * 2n ** 24n === units * 10n ** BigInt(fraction!.length);
      if (!isSame) expect.fail(`${number} is written as ${exact(BigInt(bits), half!)}`);
    }
  });

  test('of any double is read back as that double, and ends with a digit that counts', () => {
    for (let round = 0; round < 2000; round++) {
      const word = randomWord(64) >> (round % 8 === 0 ? 12n : 0n);
      const number = floatNumber(word, double!);
      if (!Number.isFinite(number)) continue;
      const text = exact(word, double!);
      expect(Number(text)).toBe(number);
      expect(text).toMatch(/\.0$|[1-9]$/);
    }
  });

  test('is complete for the smallest and largest numbers of 128 and 256 bits', () => {
    expect(exact(1n, quad!)).toHaveLength('0.'.length + 16494);
    expect(exact((0x7fffn << 112n) - 1n, quad!)).toBe(`${(2n ** 113n - 1n) * 2n ** 16271n}.0`);
    expect(exact(1n, octuple!)).toHaveLength('0.'.length + 262378);
  });
});

describe('the hexadecimal float', () => {
  test.each([
    { format: double!, word: bitsOf(Math.PI), text: '0x1.921fb54442d18p+1' },
    { format: double!, word: bitsOf(1), text: '0x1p+0' },
    { format: double!, word: bitsOf(-0.5), text: '-0x1p-1' },
    { format: double!, word: bitsOf(0), text: '0x0p+0' },
    { format: double!, word: bitsOf(-0), text: '-0x0p+0' },
    { format: double!, word: bitsOf(Number.MAX_VALUE), text: '0x1.fffffffffffffp+1023' },
    { format: double!, word: 1n, text: '0x0.0000000000001p-1022' },
    { format: half!, word: 0x7bffn, text: '0x1.ffcp+15' },
    { format: half!, word: 0x7c00n, text: 'inf' },
    { format: half!, word: 0x7c01n, text: 'nan' },
    { format: quad!, word: 0x3fffn << 112n, text: '0x1p+0' },
  ])('of $word in $format.name is $text', ({ format, word, text }) => {
    expect(hexOf(word, format)).toBe(text);
  });

  test('of any finite double is that double', () => {
    for (let round = 0; round < 10_000; round++) {
      const word = randomWord(64) >> (round % 8 === 0 ? 12n : 0n);
      const number = floatNumber(word, double!);
      if (!Number.isFinite(number)) continue;
      const [, sign, whole, fraction = '', exponent] = /^(-?)0x([01])(?:\.([\da-f]+))?p([+-]\d+)$/.exec(
        hexOf(word, double!),
      )!;
      const magnitude = parseInt(whole! + fraction, 16) * 2 ** (-4 * fraction.length);
      // In two steps: the smallest powers of two are no doubles by themselves.
      const power = Number(exponent) / 2;
      const read = magnitude * 2 ** Math.floor(power) * 2 ** Math.ceil(power);
      expect(sign === '-' ? -read : read).toBe(number);
    }
  });
});
