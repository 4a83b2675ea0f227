import { expect, test } from 'vitest';
import { wordSummary } from './wordSummary';

test('a word at a glance has its bits counted, its bytes in both orders, its characters and its float', () => {
  expect(wordSummary(0x400921fb54442d18n, 64)).toEqual({
    setBits: 23,
    leadingZeros: 1,
    trailingZeros: 3,
    bytesMost: '40 09 21 fb 54 44 2d 18',
    bytesLeast: '18 2d 44 54 fb 21 09 40',
    ascii: '@.!.TD-.',
    float: '3.14159265358979311599',
  });
});

test('zero has as many leading as trailing zeros as bits', () => {
  expect(wordSummary(0n, 32)).toMatchObject({ setBits: 0, leadingZeros: 32, trailingZeros: 32, float: '0.0' });
});

test('a single byte has no order, and a word of 512 bits no float', () => {
  expect(wordSummary(0x41n, 8)).toMatchObject({ bytesMost: undefined, bytesLeast: undefined, ascii: 'A' });
  expect(wordSummary(1n, 512).float).toBeUndefined();
});

test('of many bytes the first 32 are shown', () => {
  const { bytesMost, bytesLeast, ascii } = wordSummary(1n << 1016n, 1024);
  expect(bytesMost).toBe(`01 ${'00 '.repeat(31)}…`);
  expect(bytesLeast).toBe(`${'00 '.repeat(32)}…`);
  expect(ascii).toBe('.'.repeat(32));
});
