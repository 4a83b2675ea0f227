import fc from 'fast-check';
import { expect, test } from 'vitest';
import { rangeBetween, writtenRange } from './bitRange';
import { parseRange } from './parseRange';

test.each([
  { text: '37', hi: 37, lo: 37 },
  { text: '23:12', hi: 23, lo: 12 },
  { text: '12:23', hi: 23, lo: 12 },
  { text: ' [ 23 : 12 ] ', hi: 23, lo: 12 },
  { text: '23..12', hi: 23, lo: 12 },
  { text: '23-12', hi: 23, lo: 12 },
  { text: '0x20+8', hi: 39, lo: 32 },
  { text: '0x20 + 0x8', hi: 39, lo: 32 },
  { text: '3.7', hi: 31, lo: 31 },
  { text: '3.7:2.0', hi: 31, lo: 16 },
  { text: '1.0+8', hi: 15, lo: 8 },
  { text: '0x1F', hi: 31, lo: 31 },
  { text: '63', hi: 63, lo: 63 },
])('bits are asked for as "$text"', ({ text, hi, lo }) => {
  expect(parseRange(text, 64)).toEqual({ ok: true, value: { hi, lo } });
});

test.each(['64', '70:3', '60+5', '8.0', '99999'])('bits beyond the sheet are refused with those it has: %s', (text) => {
  expect(parseRange(text, 64)).toEqual({ ok: false, reason: 'Sheet has bits 0 to 63' });
});

test.each(['', 'x', '3.8', '3:', ':3', '1:2:3', '-1', '0x', '1e3', '5+0'])(
  'what names no bits is refused: "%s"',
  (text) => {
    expect(parseRange(text, 64).ok).toBe(false);
  },
);

test('every range of a sheet is read as it is written', () => {
  fc.assert(
    fc.property(fc.nat(1023), fc.nat(1023), (a, b) => {
      const range = rangeBetween(a, b);
      expect(parseRange(writtenRange(range), 1024)).toEqual({ ok: true, value: range });
    }),
  );
});
