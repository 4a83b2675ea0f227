import { describe, expect, test } from 'vitest';
import { type IcoPicture,packIco } from './ico';

/** Two by two: red, green over blue and half-transparent white. */
const tiny: IcoPicture = {
  size: 2,
  png: new Uint8Array(),
  rgba: new Uint8Array([255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 255, 255, 255, 128]),
};
const large: IcoPicture = { size: 256, png: new Uint8Array([0x89, 0x50, 0x4e, 0x47]), rgba: new Uint8Array() };

describe('packIco', () => {
  test('lists every picture with its size, length and place', () => {
    const file = packIco([tiny, large]);
    const view = new DataView(file.buffer);
    expect([view.getUint16(0, true), view.getUint16(2, true), view.getUint16(4, true)]).toEqual([0, 1, 2]);
    const bitmapLength = 40 + 16 + 8;
    expect([view.getUint8(6), view.getUint8(7)]).toEqual([2, 2]);
    expect([view.getUint32(14, true), view.getUint32(18, true)]).toEqual([bitmapLength, 38]);
    expect([view.getUint8(22), view.getUint8(23)]).toEqual([0, 0]);
    expect([view.getUint32(30, true), view.getUint32(34, true)]).toEqual([4, 38 + bitmapLength]);
    expect(file.length).toBe(38 + bitmapLength + 4);
  });

  test('stores small pictures as bottom-up BGRA with an empty mask', () => {
    const file = packIco([tiny]);
    const pixels = Array.from(file.slice(22 + 40, 22 + 40 + 16));
    expect(pixels).toEqual([255, 0, 0, 255, 255, 255, 255, 128, 0, 0, 255, 255, 0, 255, 0, 255]);
    expect(Array.from(file.slice(-8))).toEqual([0, 0, 0, 0, 0, 0, 0, 0]);
  });

  test('stores a picture of 256 pixels as the PNG it came as', () => {
    expect(Array.from(packIco([large]).slice(-4))).toEqual([0x89, 0x50, 0x4e, 0x47]);
  });

  test.each([
    { bitsPerPixel: 4 as const, colors: 16, row: [0x10, 0, 0, 0] },
    { bitsPerPixel: 8 as const, colors: 256, row: [1, 0, 0, 0] },
  ])('stores $bitsPerPixel-bit pictures with a palette and a mask', ({ bitsPerPixel, colors, row }) => {
    const rgba = new Uint8Array([0, 0, 0, 255, 0, 0, 0, 255, 250, 120, 10, 255, 0, 0, 0, 0]);
    const file = packIco([{ size: 2, png: new Uint8Array(), rgba, bitsPerPixel }]);
    const view = new DataView(file.buffer);
    expect([view.getUint8(8), view.getUint16(12, true)]).toEqual([colors % 256, bitsPerPixel]);
    expect([view.getUint32(22 + 4, true), view.getUint32(22 + 8, true)]).toEqual([2, 4]);
    expect(Array.from(file.slice(62, 70))).toEqual([0, 0, 0, 0, 10, 120, 250, 0]);
    const pixelsAt = 62 + colors * 4;
    expect(Array.from(file.slice(pixelsAt, pixelsAt + 8))).toEqual([...row, 0, 0, 0, 0]);
    expect(Array.from(file.slice(pixelsAt + 8))).toEqual([0x40, 0, 0, 0, 0, 0, 0, 0]);
  });

  test('refuses a size that the format cannot hold', () => {
    expect(() => packIco([{ ...large, size: 512 }])).toThrow(RangeError);
  });
});
