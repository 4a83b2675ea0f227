import fc from 'fast-check';
import { expect, test } from 'vitest';
import { blockOfColor, COLOR_CHANNELS, colorOfBlock, withChannel, withColor } from './colorWord';

const color = { red: 0x11, green: 0x22, blue: 0x33, alpha: 0x44 };

test('a block holds red in its lowest byte and alpha in its highest', () => {
  expect(colorOfBlock(0x44332211n)).toEqual(color);
  expect(blockOfColor(color)).toBe(0x44332211n);
});

test.each(COLOR_CHANNELS.map((name, channel) => ({ name, channel })))(
  'setting $name leaves the others',
  ({ name, channel }) => {
    expect(colorOfBlock(withChannel(0x44332211n, channel, 0xff))).toEqual({ ...color, [name]: 0xff });
  },
);

test('setting a colour without alpha leaves the alpha byte', () => {
  expect(withColor(0xaabbccddn, color, false)).toBe(0xaa332211n);
  expect(withColor(0xaabbccddn, color, true)).toBe(0x44332211n);
});

test('every block comes back from its colour', () => {
  fc.assert(
    fc.property(fc.integer({ min: 0, max: 2 ** 32 - 1 }), (block) => {
      expect(blockOfColor(colorOfBlock(BigInt(block)))).toBe(BigInt(block));
    }),
  );
});
