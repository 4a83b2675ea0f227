/** One picture of an icon file: square, `size` pixels wide, either encoded as PNG or as raw straight-alpha RGBA rows. */
export interface IcoPicture {
  size: number;
  png: Uint8Array;
  rgba: Uint8Array;
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
  const bodies = pictures.map((picture) => (picture.size < 256 ? bitmap(picture) : picture.png));
  const total = FILE_HEADER + ENTRY * pictures.length + bodies.reduce((sum, body) => sum + body.length, 0);
  const file = new Uint8Array(total);
  const view = new DataView(file.buffer);
  view.setUint16(2, 1, true); // kind of file: icon
  view.setUint16(4, pictures.length, true);

  let offset = FILE_HEADER + ENTRY * pictures.length;
  pictures.forEach(({ size }, index) => {
    if (size < 1 || size > 256) throw new RangeError(`An icon picture is 1 to 256 pixels wide, not ${size}`);
    const entry = FILE_HEADER + ENTRY * index;
    const body = bodies[index]!;
    view.setUint8(entry, size % 256); // 256 is written as 0
    view.setUint8(entry + 1, size % 256);
    view.setUint16(entry + 4, 1, true); // colour planes
    view.setUint16(entry + 6, 32, true); // bits per pixel
    view.setUint32(entry + 8, body.length, true);
    view.setUint32(entry + 12, offset, true);
    file.set(body, offset);
    offset += body.length;
  });
  return file;
}

/** A device-independent bitmap: BGRA rows from the bottom up, then a 1-bit mask that is all zero because alpha rules. */
function bitmap({ size, rgba }: IcoPicture): Uint8Array {
  const maskStride = Math.ceil(size / 32) * 4;
  const body = new Uint8Array(BITMAP_HEADER + size * size * 4 + maskStride * size);
  const view = new DataView(body.buffer);
  view.setUint32(0, BITMAP_HEADER, true);
  view.setInt32(4, size, true);
  view.setInt32(8, size * 2, true); // colours and mask together
  view.setUint16(12, 1, true);
  view.setUint16(14, 32, true);

  for (let y = 0; y < size; y++) {
    for (let x = 0; x < size; x++) {
      const from = (y * size + x) * 4;
      const to = BITMAP_HEADER + ((size - 1 - y) * size + x) * 4;
      body[to] = rgba[from + 2]!;
      body[to + 1] = rgba[from + 1]!;
      body[to + 2] = rgba[from]!;
      body[to + 3] = rgba[from + 3]!;
    }
  }
  return body;
}
