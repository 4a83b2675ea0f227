import fc from 'fast-check';
import { describe, expect, test } from 'vitest';
import { formatInteger } from './formatInteger';
import { parseInteger } from './parseInteger';

const LOWER = 'abcdefghijklmnopqrstuvwxyz';
const UPPER = LOWER.toUpperCase();

describe('accepts', () => {
  test.each([
    { name: 'blanks around the text', text: ' 12\t', base: 10, width: 8, signed: false, word: 12n },
    { name: 'leading zeros', text: '000255', base: 10, width: 8, signed: false, word: 255n },
    { name: 'minus one in a signed byte', text: '-1', base: 10, width: 8, signed: true, word: 255n },
    { name: 'the least signed byte', text: '-128', base: 10, width: 8, signed: true, word: 128n },
    { name: 'minus zero in an unsigned word', text: '-0', base: 10, width: 8, signed: false, word: 0n },
    { name: 'a binary prefix', text: '0b101', base: 2, width: 8, signed: false, word: 5n },
    { name: 'an octal prefix', text: '0O17', base: 8, width: 8, signed: false, word: 15n },
    { name: 'a hexadecimal prefix', text: '0Xff', base: 16, width: 8, signed: false, word: 255n },
    { name: 'b as a digit, not a prefix, in base 16', text: '0b1', base: 16, width: 8, signed: false, word: 0xb1n },
    { name: 'x as a digit in base 36', text: '0x', base: 36, width: 8, signed: false, word: 33n },
    { name: 'either letter case up to base 36', text: 'zZ', base: 36, width: 16, signed: false, word: 1295n },
    { name: 'lower case as 10 to 35 above base 36', text: 'a', base: 62, width: 8, signed: false, word: 10n },
    { name: 'upper case as 36 to 61 above base 36', text: 'A', base: 62, width: 8, signed: false, word: 36n },
    { name: 'plus as 62', text: '+', base: 63, width: 8, signed: false, word: 62n },
    { name: 'slash as 63', text: '/', base: 64, width: 8, signed: false, word: 63n },
  ])('$name', ({ text, base, width, signed, word }) => {
    expect(parseInteger(text, base, width, signed)).toEqual({ ok: true, value: word });
  });
});

describe('refuses', () => {
  const outOfByte = 'is out of range. Must be between';
  test.each([
    { text: '1', base: 1, reason: 'Base must be an integer between 2 and 64, got: 1' },
    { text: '', base: 65, reason: 'Base must be an integer between 2 and 64, got: 65' },
    { text: '1', base: 10.5, reason: 'Base must be an integer between 2 and 64, got: 10.5' },
    { text: '', base: 10, reason: 'Empty or invalid input' },
    { text: ' \n', base: 16, reason: 'Empty or invalid input' },
    { text: '-', base: 10, reason: 'Empty or invalid input' },
    { text: '-1', base: 16, reason: 'Negative numbers not supported for base 16' },
    { text: '-0xZZ', base: 16, reason: 'Negative numbers not supported for base 16' },
    { text: '-', base: 64, reason: 'Negative numbers not supported for base 64' },
    { text: '0x', base: 16, reason: 'Empty input after removing prefix' },
    { text: ' 0B ', base: 2, reason: 'Empty input after removing prefix' },
    { text: '0o', base: 8, reason: 'Empty input after removing prefix' },
    { text: '12', base: 2, reason: "Invalid character '2' for base 2. Valid characters: 01 (case insensitive)" },
    { text: '0x1', base: 8, reason: "Invalid character 'x' for base 8. Valid characters: 01234567 (case insensitive)" },
    {
      text: '--1',
      base: 10,
      reason: "Invalid character '-' for base 10. Valid characters: 0123456789 (case insensitive)",
    },
    {
      text: '1G',
      base: 16,
      reason: "Invalid character 'G' for base 16. Valid characters: 0123456789abcdef (case insensitive)",
    },
    {
      text: '\u212a',
      base: 36,
      reason: `Invalid character '\u212a' for base 36. Valid characters: 0123456789${LOWER} (case insensitive)`,
    },
    {
      text: 'aB',
      base: 37,
      reason: `Invalid character 'B' for base 37. Valid characters: 0123456789${LOWER}A (case sensitive)`,
    },
    {
      text: 'a+',
      base: 62,
      reason: `Invalid character '+' for base 62. Valid characters: 0123456789${LOWER}${UPPER} (case sensitive)`,
    },
    {
      text: '/',
      base: 63,
      reason: `Invalid character '/' for base 63. Valid characters: 0123456789${LOWER}${UPPER}+ (case sensitive)`,
    },
    {
      text: '1😀',
      base: 64,
      reason: `Invalid character '😀' for base 64. Valid characters: 0123456789${LOWER}${UPPER}+/ (case sensitive)`,
    },
    { text: '256', base: 10, reason: `Value 256 ${outOfByte} 0 and 255` },
    { text: '-1', base: 10, reason: `Value -1 ${outOfByte} 0 and 255` },
    { text: '100', base: 16, reason: `Value 100 ${outOfByte} 0 and FF` },
    { text: '128', base: 10, signed: true, reason: `Value 128 ${outOfByte} -128 and 127` },
    { text: 'ff', base: 16, signed: true, reason: `Value FF ${outOfByte} -80 and 7F` },
    { text: 'zz', base: 62, reason: `Value ZZ ${outOfByte} 0 and 47` },
    // More digits than the word has bits.
    { text: '0001234567890', base: 10, reason: `Value 1234567890 ${outOfByte} 0 and 255` },
    { text: '-123456789', base: 10, reason: `Value -123456789 ${outOfByte} 0 and 255` },
    { text: '0x00abcdef012', base: 16, reason: `Value ABCDEF012 ${outOfByte} 0 and FF` },
    { text: 'azAZ09+/zz', base: 64, reason: `Value AZaz09+/ZZ ${outOfByte} 0 and 3/` },
  ])('$text in base $base', ({ text, base, signed, reason }) => {
    expect(parseInteger(text, base, 8, signed)).toEqual({ ok: false, reason });
  });

  test('a signed word with its top bit set in base 16', () => {
    expect(parseInteger('FFFFFFFF', 16, 32, true)).toEqual({
      ok: false,
      reason: 'Value FFFFFFFF is out of range. Must be between -80000000 and 7FFFFFFF',
    });
  });
});

const wordOfAnyWidth = fc
  .constantFrom(8, 16, 32, 64, 128, 256, 512, 1024)
  .chain((width) =>
    fc.record({ width: fc.constant(width), word: fc.bigInt({ min: 0n, max: (1n << BigInt(width)) - 1n }) }),
  );

test('a million zeros count for nothing', () => {
  expect(parseInteger(`-${'0'.repeat(1_000_000)}80`, 10, 8, true)).toEqual({ ok: true, value: 0xb0n });
  expect(parseInteger('0'.repeat(1_000_000), 3, 8)).toEqual({ ok: true, value: 0n });
});

describe('what was written is read back', () => {
  test('in every base up to 36', () => {
    fc.assert(
      fc.property(wordOfAnyWidth, fc.integer({ min: 2, max: 36 }), ({ word, width }, base) => {
        expect(parseInteger(formatInteger(word, base, width), base, width)).toEqual({ ok: true, value: word });
      }),
      { numRuns: 1000 },
    );
  });

  test('in base 10 for signed words', () => {
    fc.assert(
      fc.property(wordOfAnyWidth, ({ word, width }) => {
        expect(parseInteger(formatInteger(word, 10, width, true), 10, width, true)).toEqual({ ok: true, value: word });
      }),
    );
  });

  test('above base 36 once the two letter cases are swapped', () => {
    const swapCase = (text: string) =>
      text.replace(/[a-z]/gi, (letter) => (letter < 'a' ? letter.toLowerCase() : letter.toUpperCase()));
    fc.assert(
      fc.property(wordOfAnyWidth, fc.integer({ min: 37, max: 64 }), ({ word, width }, base) => {
        const text = swapCase(formatInteger(word, base, width));
        expect(parseInteger(text, base, width)).toEqual({ ok: true, value: word });
      }),
      { numRuns: 1000 },
    );
  });

  test('above base 36 as another number where it holds letters', () => {
    expect(formatInteger(10n, 62, 16)).toBe('A');
    expect(parseInteger('A', 62, 16)).toEqual({ ok: true, value: 36n });
    expect(formatInteger(36n, 62, 16)).toBe('a');
    expect(parseInteger('a', 62, 16)).toEqual({ ok: true, value: 10n });
  });
});
