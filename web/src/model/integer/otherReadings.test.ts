import { expect, test } from 'vitest';
import { otherReadings } from './otherReadings';

const WIDER = [128, 256];
const HASH = `0x${'ab'.repeat(32)}`;

test.each([
  { name: 'a prefix', text: '0xFF', base: 10, readings: [{ base: 16, width: 64, value: 255n }] },
  { name: 'a prefix in capitals', text: ' 0B101 ', base: 10, readings: [{ base: 2, width: 64, value: 5n }] },
  { name: 'letters', text: 'C0DE', base: 10, readings: [{ base: 16, width: 64, value: 0xc0den }] },
  { name: 'decimal digits', text: '102', base: 2, readings: [{ base: 10, width: 64, value: 102n }] },
  { name: 'a number too wide', text: `${2n ** 64n}`, base: 10, readings: [{ base: 10, width: 128, value: 2n ** 64n }] },
  { name: 'a hash with its prefix', text: HASH, base: 10, readings: [{ base: 16, width: 256, value: BigInt(HASH) }] },
  {
    name: 'decimal digits that are too many for base 16',
    text: '12345678901234567890',
    base: 16,
    readings: [
      { base: 10, width: 64, value: 12345678901234567890n },
      { base: 16, width: 128, value: 0x12345678901234567890n },
    ],
  },
  { name: 'nothing', text: '', base: 10, readings: [] },
  { name: 'no number in any base', text: 'hello!', base: 10, readings: [] },
  { name: 'a number too wide for every sheet', text: '9'.repeat(400), base: 10, readings: [] },
  { name: 'more digits than any sheet has bits', text: '1'.repeat(1025), base: 10, readings: [] },
  {
    name: 'few digits behind many zeros',
    text: `0x${'0'.repeat(2000)}ff`,
    base: 10,
    readings: [{ base: 16, width: 64, value: 255n }],
  },
])('other readings of $name', ({ text, base, readings }) => {
  expect(otherReadings(text, base, 64, false, WIDER)).toEqual(readings);
});

test('a negative number fits a signed word in base 10', () => {
  expect(otherReadings('-1', 16, 8, true, [])).toEqual([{ base: 10, width: 8, value: 0xffn }]);
  expect(otherReadings('-1', 16, 8, false, [])).toEqual([]);
});
