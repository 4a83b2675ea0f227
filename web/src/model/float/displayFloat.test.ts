import { describe, expect, test } from 'vitest';
import { randomWord } from '../integer/wordOperations';
import { displayFloat } from './displayFloat';
import { type FloatFormat, floatFormatFor } from './floatFormats';

const show = (word: bigint, width: number) => displayFloat(word, floatFormatFor(width)!);
const view = new DataView(new ArrayBuffer(8));

function bitsOf(value: number): bigint {
  view.setFloat64(0, value);
  return view.getBigUint64(0);
}

describe('displayFloat', () => {
  test.each([
    { name: 'zero', width: 16, word: 0n, text: '0.0' },
    { name: 'negative zero', width: 16, word: 0x8000n, text: '0.0' },
    { name: 'infinity', width: 32, word: 0x7f800000n, text: 'Infinity' },
    { name: 'negative infinity', width: 32, word: 0xff800000n, text: '-Infinity' },
    { name: 'not a number', width: 32, word: 0x7f800001n, text: 'NaN' },
    { name: 'a negative not a number', width: 32, word: 0xffc00000n, text: 'NaN' },
    { name: 'infinity of a byte', width: 8, word: 0x78n, text: 'Infinity' },
    { name: 'the largest byte', width: 8, word: 0x77n, text: '240.0' },
    { name: 'the smallest byte', width: 8, word: 0x01n, text: '0.001953125' },
    { name: 'one', width: 16, word: 0x3c00n, text: '1.0' },
    { name: 'a negative fraction', width: 16, word: 0xb800n, text: '-0.5' },
    { name: 'the largest half', width: 16, word: 0x7bffn, text: '65504.0' },
    { name: 'the smallest half, cut to 20 digits', width: 16, word: 0x0001n, text: '0.00000005960464477539' },
    { name: 'a third in a half', width: 16, word: 0x3555n, text: '0.333251953125' },
    { name: 'pi in a single, cut and not rounded', width: 32, word: 0x40490fdbn, text: '3.14159274101257324218' },
    { name: 'the largest single', width: 32, word: 0x7f7fffffn, text: '3.402823466385288e+38' },
    { name: 'the smallest single', width: 32, word: 0x00000001n, text: '0.00000000000000000000' },
    { name: 'one in 128 bits', width: 128, word: 0x3fffn << 112n, text: '1.0' },
    { name: 'one in 256 bits', width: 256, word: 0x3ffffn << 236n, text: '1.0' },
    { name: 'the largest 128 bits', width: 128, word: (0x7fffn << 112n) - 1n, text: '1.189731495357231e+4932' },
    { name: 'the largest 256 bits', width: 256, word: (0x7ffffn << 236n) - 1n, text: '1.611325717485760e+78913' },
    { name: 'the smallest 256 bits', width: 256, word: 1n, text: '0.00000000000000000000' },
  ])('shows $name as $text', ({ width, word, text }) => {
    expect(show(word, width)).toBe(text);
  });

  test.each([
    { value: 0.1, text: '0.10000000000000000555' },
    { value: 0.3, text: '0.29999999999999998889' },
    { value: 99999.1, text: '99999.10000000000582076609' },
    { value: 123456.789, text: '1.23456789e+5' },
    { value: -123456.789, text: '-1.23456789e+5' },
    { value: 123456.7, text: '1.234566999999999e+5' },
    { value: 123456.5, text: '123456.5' },
    { value: 2 ** 40 + 2 ** -12, text: '1099511627776.000244140625' },
    { value: 2 ** 39 + 2 ** -13, text: '549755813888.0001220703125' },
    { value: 2 ** 40 + 2 ** -11, text: '1099511627776.00048828125' },
    { value: 2 ** 42 + 2 ** -10, text: '4398046511104.0009765625' },
    { value: 1e19, text: '10000000000000000000.0' },
    { value: 99999999999999991611392, text: '9.999999999999999e+22' },
    { value: 1e20, text: '1.000000000000000e+20' },
    { value: 1e300, text: '1.000000000000000e+300' },
    { value: -1.5e300, text: '-1.500000000000000e+300' },
    { value: 1e-30, text: '0.00000000000000000000' },
    { value: 5e-324, text: '0.00000000000000000000' },
  ])('shows the double $value as $text', ({ value, text }) => {
    expect(show(bitsOf(value), 64)).toBe(text);
  });

  test('drops trailing zeros of a large number whose bits reach below the point, but not the last one', () => {
    const quadOf = (value: bigint) => {
      const top = value.toString(2).length - 1;
      return (BigInt(16383 + top) << 112n) | BigInt.asUintN(112, value << BigInt(112 - top));
    };
    expect(show(quadOf(10n ** 22n), 128)).toBe('1.0e+22');
    expect(show(quadOf(125n * 10n ** 20n), 128)).toBe('1.25e+22');
    expect(show(quadOf(10n ** 19n), 128)).toBe('10000000000000000000.0');
  });

  // No format of ours is built so; the rule is there for one whose subnormals are whole numbers.
  test('shows subnormal whole numbers in full up to 20 digits and then with an exponent', () => {
    const wholes: FloatFormat = { name: 'wholes', exponentBits: 2, mantissaBits: 80, bias: -100 };
    expect(displayFloat(1n, { ...wholes, bias: -79 })).toBe('1.0');
    expect(displayFloat(10n ** 20n, { ...wholes, bias: -79 })).toBe('1.000000000000000e+20');
    expect(displayFloat(1n, wholes)).toBe('2097152.0');
  });

  test('shows subnormal numbers with many integer digits in full', () => {
    const mixed: FloatFormat = { name: 'mixed', exponentBits: 2, mantissaBits: 80, bias: -75 };
    expect(displayFloat(((10n ** 21n) << 4n) | 1n, mixed)).toBe('1000000000000000000000.0625');
  });
});

// Number.toFixed writes exact digits; what it rounds at place 100 is far from what we show.
function reference(value: number): string {
  if (!Number.isFinite(value)) return `${value}`;
  if (value === 0) return '0.0';
  const [integer, fraction] = plainDigits(Math.abs(value));
  const sign = value < 0 ? '-' : '';
  if (integer.length <= 20 && integer.length + fraction.length <= 25) return `${sign}${integer}.${fraction}`;
  const further = (integer + fraction).slice(1, 16);
  const kept = Math.abs(value) < 2 ** 53 ? further.replace(/0+$/, '') : further;
  return `${sign}${integer.charAt(0)}.${kept}e+${integer.length - 1}`;
}

function plainDigits(value: number): [string, string] {
  if (value >= 1e21) return [BigInt(value).toString(), '0'];
  const [integer, fraction] = value.toFixed(100).split('.') as [string, string];
  const exact = fraction.replace(/0+$/, '') || '0';
  return [integer, exact.slice(0, 20)];
}

describe('displayed digits agree with the engine’s own', () => {
  test('for all half floats', () => {
    for (let bits = 0; bits < 65536; bits++) {
      view.setUint16(0, bits);
      const [shown, expected] = [show(BigInt(bits), 16), reference(view.getFloat16(0))];
      if (shown !== expected) expect.fail(`${bits.toString(16)} is shown as ${shown}, not ${expected}`);
    }
  });

  test('for random doubles of every size', () => {
    for (let round = 0; round < 50_000; round++) {
      const word = randomWord(64);
      view.setBigUint64(0, word);
      const value = view.getFloat64(0);
      if (Math.abs(value) < 1e-60) continue;
      expect(show(word, 64)).toBe(reference(value));
    }
  });

  test('for random doubles around one to a quintillion', () => {
    for (let round = 0; round < 50_000; round++) {
      const value = 2 ** (Math.random() * 80 - 20);
      expect(show(bitsOf(value), 64)).toBe(reference(value));
    }
  });
});
