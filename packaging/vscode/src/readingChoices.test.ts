import { expect, test } from 'vitest';
import { readText } from '../../../web/src/model/text/readText';
import { choicesOf, sheetOfChoice } from './readingChoices';

function firstChoice(text: string) {
  const readings = readText(text);
  return readings.ok ? choicesOf(readings.value)[0] : undefined;
}

test.each([
  ['0x1', 32],
  ['0x0000000000000001', 64],
  ['4294967296', 64],
  ['-1', 32],
  ['00 11 22 33 44 55 66 77 88', 128],
  [`0x${'f'.repeat(256)}`, 1024],
  ['1.5', 64],
])('%s gets a sheet that it fits', (text, width) => {
  expect(firstChoice(text)?.width).toBe(width);
});

test('what no sheet has room for is not offered', () => {
  const readings = readText(`0x${'f'.repeat(257)}`);
  expect(readings.ok && choicesOf(readings.value).map(({ label }) => label)).toEqual([]);
});

test('a negative number is stored in two complements of the sheet', () => {
  expect(sheetOfChoice(firstChoice('-2')!, 'Minus two')).toMatchObject({
    displayName: 'Minus two',
    int: 0xffff_fffen,
    intResolution: 32,
  });
});
