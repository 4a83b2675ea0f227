import { describe, expect, test } from 'vitest';
import { literalAt, numberAt, readingsAround } from './numbersInText';
import { choicesOf } from './readingChoices';

/** The place of "|" in a text, and the text without it. */
function marked(text: string): [string, number] {
  return [text.replace('|', ''), text.indexOf('|')];
}

describe('the number at the cursor', () => {
  test.each([
    ['x = 0xdead|_beef;', '0xdead_beef'],
    ['f(0x12345678|)', '0x12345678'],
    ["a <= 64'hff|00;", "64'hff00"],
    ["1'000'000|ull,", "1'000'000ull"],
    ['id: 550e8400-e29b-41d4-|a716-446655440000.', '550e8400-e29b-41d4-a716-446655440000'],
    ['ping 192.168.|0.1:', '192.168.0.1'],
    ['case 0x1|0:', '0x10'],
    ['a-0x12345|678', '0x12345678'],
    ['pi = 3.14159|', '3.14159'],
    ['nothing| here', undefined],
    ['  |  0x10', undefined],
  ])('%s', (text, number) => {
    expect(numberAt(...marked(text))?.text).toBe(number);
  });
});

describe('a literal that is worth a hover', () => {
  test.each([
    ['0x1234567|8', '0x12345678'],
    ['0x123456|7', undefined],
    ['12345678|u64', '12345678u64'],
    ['1234567|u64', undefined],
    ['0b1010_1010|', '0b1010_1010'],
    ['dead|beef', 'deadbeef'],
    ['face_dec|ade', undefined],
    ['function_|name', undefined],
    ['"0xdeadbeef|"', '0xdeadbeef'],
  ])('%s', (text, literal) => {
    expect(literalAt(...marked(text), 8)?.text).toBe(literal);
  });
});

describe('what stands around the cursor', () => {
  test.each([
    ['a number', 'mask = 0xff|;', ['number, base 16 → 32 bits 0xff']],
    [
      'a list of bytes over two lines',
      'uint8_t key[] = {0xde, 0xad,\n  0xbe|, 0xef};',
      [
        'list, 8 bits × 4, most significant first → 32 bits 0xdeadbeef',
        'list, 8 bits × 4, most significant last → 32 bits 0xefbeadde',
      ],
    ],
    [
      'a line of a hexdump among others',
      '00000000  7f 45 4c 46  |.ELF|\n00000010  de ad |be ef  |....|\n'.replace('ad |be', 'ad \u0000be'),
      [
        'memory dump, 8 bits × 4, most significant first → 32 bits 0xdeadbeef',
        'memory dump, 8 bits × 4, most significant last → 32 bits 0xefbeadde',
      ],
    ],
    ['the name of a register', 'ra|x            0x1c5', ['register, rax → 32 bits 0x1c5']],
    ['words of prose', 'the quick| brown fox', []],
  ])('%s', (_, text, choices) => {
    const [plain, place] = text.includes('\u0000')
      ? [text.replace('\u0000', ''), text.indexOf('\u0000')]
      : marked(text);
    const found = choicesOf(readingsAround(plain, place)).map(({ label, description }) => `${label} ${description}`);
    expect(found.slice(0, choices.length || undefined)).toEqual(choices);
  });
});
