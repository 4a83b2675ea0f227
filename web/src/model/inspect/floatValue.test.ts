import { describe, expect, test } from 'vitest';
import { randomWord } from '../integer/wordOperations';
import { floatClass, floatNumber, nextFloat, ulpExponent } from './floatValue';
import { floatValue } from './floatValue';
import { BFLOAT16, type InspectedFormat, inspectedFormats } from './inspectedFormats';

const view = new DataView(new ArrayBuffer(8));
const [half] = inspectedFormats(16);
const [double] = inspectedFormats(64);
const [ours, ocpE4M3, ocpE5M2] = inspectedFormats(8);

/** The values of an 8-bit format's positive patterns in steps of its smallest one: the step doubles with each exponent. */
function countedUp(mantissas: number, patterns: number, smallest: number): number[] {
  const values: number[] = [];
  for (let pattern = 0, value = 0, step = smallest; pattern < patterns; pattern++) {
    values.push(value);
    if (pattern >= 2 * mantissas && pattern % mantissas === 0) step *= 2;
    value += step;
  }
  return values;
}

/** What a format has for 0x00 to 0x7f, and for 0x80 to 0xff with the other sign. */
function expectTable(format: InspectedFormat, positive: readonly number[]) {
  expect(positive).toHaveLength(128);
  const table = [...positive, ...positive.map((value) => -value)];
  expect(table.map((_, bits) => floatNumber(BigInt(bits), format))).toEqual(table);
}

describe('all 256 patterns', () => {
  test('of OCP E4M3 are numbers up to 448, but for one NaN of each sign', () => {
    const values = countedUp(8, 127, 2 ** -9);
    expect(values.at(-1)).toBe(448);
    expectTable(ocpE4M3!, [...values, NaN]);
  });

  test('of OCP E5M2 are numbers up to 57344, an infinity and three NaNs of each sign', () => {
    const values = countedUp(4, 124, 2 ** -16);
    expect(values.at(-1)).toBe(57344);
    expectTable(ocpE5M2!, [...values, Infinity, NaN, NaN, NaN]);
  });

  test('of E4M3 as the float field has it are numbers up to 240, an infinity and seven NaNs of each sign', () => {
    const values = countedUp(8, 120, 2 ** -9);
    expect(values.at(-1)).toBe(240);
    expectTable(ours!, [...values, Infinity, NaN, NaN, NaN, NaN, NaN, NaN, NaN]);
  });
});

test('all 65,536 patterns of bfloat16 are what the same bits are as the upper half of a single', () => {
  for (let bits = 0; bits < 65536; bits++) {
    view.setUint32(0, bits * 65536);
    if (Object.is(floatNumber(BigInt(bits), BFLOAT16), view.getFloat32(0))) continue;
    expect.fail(`${bits.toString(16)} is ${floatNumber(BigInt(bits), BFLOAT16)}, not ${view.getFloat32(0)}`);
  }
});

describe('the next float', () => {
  test.each([half!, BFLOAT16, ...inspectedFormats(8)])(
    'of every pattern of $name is the next larger number',
    (format) => {
      const { exponentBits, mantissaBits } = format.format;
      const patterns = Array.from({ length: 2 ** (1 + exponentBits + mantissaBits) }, (_, bits) => BigInt(bits));
      const numbers = patterns.map((bits) => floatNumber(bits, format));
      const ascending = [...new Set(numbers.filter((number) => !Number.isNaN(number)))].sort((a, b) => a - b);
      const places = new Map(ascending.map((number, place) => [number, place]));
      const beside = (number: number, step: number) => ascending[places.get(number)! + step];
      for (const [index, bits] of patterns.entries()) {
        for (const step of [1, -1] as const) {
          const next = nextFloat(bits, format, step);
          const found = next === undefined ? undefined : floatNumber(next, format) + 0;
          const expected = Number.isNaN(numbers[index]) ? undefined : beside(numbers[index]!, step);
          if (found !== expected) expect.fail(`${bits} by ${step}: ${found}, not ${expected}`);
        }
      }
    },
  );

  test('below the smallest negative number is the negative zero, and above the negative zero the smallest number', () => {
    expect(nextFloat(0x8001n, half!, 1)).toBe(0x8000n);
    expect(nextFloat(0x8000n, half!, 1)).toBe(0x0001n);
    expect(nextFloat(0x0000n, half!, -1)).toBe(0x8001n);
  });
});

test('the gap of a double is how far the next one lies above it', () => {
  for (let round = 0; round < 10_000; round++) {
    // A sign or an infinity would turn the gap around.
    const word = BigInt.asUintN(62, randomWord(64));
    const gap = floatNumber(nextFloat(word, double!, 1)!, double!) - floatNumber(word, double!);
    expect(2 ** ulpExponent(floatValue(word, double!), double!.format)!).toBe(gap);
  }
});

test.each([
  { format: double!, word: 0n, text: 'zero' },
  { format: double!, word: 1n, text: 'subnormal' },
  { format: double!, word: 0x3ff0000000000000n, text: 'normal' },
  { format: double!, word: 0xfff0000000000000n, text: 'infinity' },
  { format: double!, word: 0x7ff8000000000000n, text: 'quiet NaN, payload 0x0' },
  { format: double!, word: 0xfff80000deadbeefn, text: 'quiet NaN, payload 0xdeadbeef' },
  { format: double!, word: 0x7ff0000000000001n, text: 'signalling NaN, payload 0x1' },
  { format: BFLOAT16, word: 0x7fc1n, text: 'quiet NaN, payload 0x1' },
  { format: BFLOAT16, word: 0xff81n, text: 'signalling NaN, payload 0x1' },
  { format: ocpE5M2!, word: 0x7dn, text: 'NaN, mantissa 0x1' },
  { format: ocpE4M3!, word: 0x7fn, text: 'NaN, mantissa 0x7' },
  { format: ocpE4M3!, word: 0x7en, text: 'normal' },
  { format: ours!, word: 0x7en, text: 'NaN, mantissa 0x6' },
])('$word of $format.name is $text', ({ format, word, text }) => {
  expect(floatClass(word, format)).toBe(text);
});
