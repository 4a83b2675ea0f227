import { expect, test } from 'vitest';
import { readDocumentInt, writeDocumentInt } from './documentInt';

test.each([
  { raw: '0x1f', value: 31n },
  { raw: '0X1F', value: 31n },
  { raw: '31', value: 31n },
  { raw: 31, value: 31n },
  { raw: '0o37', value: 31n },
  { raw: '0O37', value: 31n },
  { raw: '0b11111', value: 31n },
  { raw: '0B11111', value: 31n },
  { raw: ' \t31\n', value: 31n },
  { raw: '', value: 0n },
  { raw: '   ', value: 0n },
  { raw: '-5', value: -5n },
  { raw: `0x1${'0'.repeat(300)}`, value: 1n << 1200n },
])('$raw is read as an integer', ({ raw, value }) => {
  expect(readDocumentInt(raw)).toBe(value);
});

test.each(['0xZZ', '1.5', '1 2', '0x', '-0x5', '1n', 'ten'])('%j is refused with the conversion’s own error', (raw) => {
  expect(() => readDocumentInt(raw)).toThrow(new SyntaxError(`Cannot convert ${raw} to a BigInt`));
});

test('a fractional number is refused', () => {
  expect(() => readDocumentInt(1.5)).toThrow(RangeError);
});

test.each([
  { value: 0n, resolution: 64, text: '0x0' },
  { value: 255n, resolution: 64, text: '0xff' },
  { value: 0x1ffn, resolution: 8, text: '0x1ff' },
  { value: -1n, resolution: 16, text: '0xffff' },
])('$value is written as $text', ({ value, resolution, text }) => {
  expect(writeDocumentInt(value, resolution)).toBe(text);
});
