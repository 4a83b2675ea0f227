import { palettise } from './palette.ts';

/** One picture of an icon file: square, `size` pixels wide, either encoded as PNG or as raw straight-alpha RGBA rows. */
export interface IcoPicture {
  size: number;
  png: Uint8Array;
  rgba: Uint8Array;
  /** How it is stored: 32 (the default) with alpha, 8 or 4 with a palette and a mask. */
  bitsPerPixel?: 4 | 8 | 32;
}

const FILE_HEADER = 6;
const ENTRY = 16;
const BITMAP_HEADER = 40;

/**
 * Packs pictures into one Windows icon file.
 * Pictures below 256 pixels are stored as 32-bit bitmaps, which every reader of the format knows; larger ones as PNG.
 * @param pictures - at least one; sizes from 1 to 256
 * @returns the bytes of the .ico file
 * @throws RangeError when a size cannot be written down in the format
 */
export function packIco(pictures: readonly IcoPicture[]): Uint8Array {
  const bodies = pictures.map(encode);
  const total = FILE_HEADER + ENTRY * pictures.length + bodies.reduce((sum, body) => sum + body.length, 0);
  const file = new Uint8Array(total);
  const view = new DataView(file.buffer);
  view.setUint16(2, 1, true); // kind of file: icon
  view.setUint16(4, pictures.length, true);

  let offset = FILE_HEADER + ENTRY * pictures.length;
  pictures.forEach(({ size, bitsPerPixel = 32 }, index) => {
    if (size < 1 || size > 256) throw new RangeError(`An icon picture is 1 to 256 pixels wide, not ${size}`);
    const entry = FILE_HEADER + ENTRY * index;
    const body = bodies[index]!;
    view.setUint8(entry, size % 256); // 256 is written as 0
    view.setUint8(entry + 1, size % 256);
    view.setUint16(entry + 4, 1, true); // colour planes
    if (bitsPerPixel === 4) view.setUint8(entry + 2, 16); // colours; 0 from 256 on
    view.setUint16(entry + 6, bitsPerPixel, true);
    view.setUint32(entry + 8, body.length, true);
    view.setUint32(entry + 12, offset, true);
    file.set(body, offset);
    offset += body.length;
  });
  return file;
}

function encode(picture: IcoPicture): Uint8Array {
  const { bitsPerPixel = 32 } = picture;
  if (bitsPerPixel !== 32) return palettisedBitmap(picture, bitsPerPixel);
  return picture.size < 256 ? bitmap(picture) : picture.png;
}

/** Rows of bitmaps and masks fill whole 32-bit words. */
const stride = (size: number, bits: number) => Math.ceil((size * bits) / 32) * 4;

/** An empty device-independent bitmap with its header: colours at `colorsAt`, the 1-bit mask at `maskAt`. */
function emptyBitmap(size: number, bits: number, paletteLength: number) {
  const colorsAt = BITMAP_HEADER + paletteLength * 4;
  const maskAt = colorsAt + stride(size, bits) * size;
  const body = new Uint8Array(maskAt + stride(size, 1) * size);
  const view = new DataView(body.buffer);
  view.setUint32(0, BITMAP_HEADER, true);
  view.setInt32(4, size, true);
  view.setInt32(8, size * 2, true); // colours and mask together
  view.setUint16(12, 1, true);
  view.setUint16(14, bits, true);
  return { body, colorsAt, maskAt };
}

/** BGRA rows from the bottom up, then a mask that is all zero because alpha rules. */
function bitmap({ size, rgba }: IcoPicture): Uint8Array {
  const { body, colorsAt } = emptyBitmap(size, 32, 0);
  for (let y = 0; y < size; y++) {
    for (let x = 0; x < size; x++) {
      const from = (y * size + x) * 4;
      const to = colorsAt + ((size - 1 - y) * size + x) * 4;
      body[to] = rgba[from + 2]!;
      body[to + 1] = rgba[from + 1]!;
      body[to + 2] = rgba[from]!;
      body[to + 3] = rgba[from + 3]!;
    }
  }
  return body;
}

/** BGR0 palette, rows of palette indices from the bottom up, then a mask with a 1 for every transparent pixel. */
function palettisedBitmap({ size, rgba }: IcoPicture, bits: 4 | 8): Uint8Array {
  const { palette, indices } = palettise(rgba, 2 ** bits);
  const { body, colorsAt, maskAt } = emptyBitmap(size, bits, 2 ** bits);
  palette.forEach(([red, green, blue], i) => body.set([blue, green, red, 0], BITMAP_HEADER + i * 4));
  for (let y = 0; y < size; y++) {
    const row = size - 1 - y;
    for (let x = 0; x < size; x++) {
      const index = indices[y * size + x] ?? null;
      if (index === null) body[maskAt + row * stride(size, 1) + (x >> 3)]! |= 0x80 >> (x & 7);
      else if (bits === 8) body[colorsAt + row * stride(size, 8) + x] = index;
      else body[colorsAt + row * stride(size, 4) + (x >> 1)]! |= x % 2 === 0 ? index << 4 : index;
    }
  }
  return body;
}
