import { expect, test } from 'vitest';
import { numberRows } from './numberTable';

const texts = (text: string) => Object.fromEntries(numberRows(text)?.map((row) => [row.name, row.text]) ?? []);

test('a long literal in other bases, as a float and by its set bits', () => {
  expect(texts('0x40490fdb')).toEqual({
    Hexadecimal: '0x4049_0fdb',
    Decimal: '1_078_530_011',
    Binary: '0b100_0000_0100_1001_0000_1111_1101_1011',
    'Float 32': expect.stringMatching(/^3\.14159/),
    'Set bits': '14: 30, 22, 19, 16, 11–6, 4–3, 1–0',
  });
});

test('64 bits are a double', () => {
  expect(texts('0x3ff0000000000000ull')['Float 64']).toBe('1.0');
});

test('digits that stand alone are decimal', () => {
  expect(texts('12345678')).toMatchObject({ Hexadecimal: '0xbc_614e', Decimal: '12_345_678' });
});

test('zero has no set bits', () => {
  expect(texts('0x00000000')['Set bits']).toBe('none');
});

test('many separate bits are counted, and not all listed', () => {
  expect(texts(`0x${'5'.repeat(16)}`)['Set bits']).toMatch(/^32: 62, 60, .*, …$/);
});

test('more than a sheet has room for has no table', () => {
  expect(numberRows(`0x1${'0'.repeat(256)}`)).toBeUndefined();
});
