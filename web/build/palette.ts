/** A picture in a small set of colours. `indices` has one entry per pixel; null pixels are transparent. */
export interface PalettisedPicture {
  palette: [red: number, green: number, blue: number][];
  indices: (number | null)[];
}

const OPAQUE_FROM = 128;

type Color = [number, number, number];

/**
 * Reduces a picture to at most `count` colours by Heckbert's median cut; pixels less than half opaque become transparent.
 * @param rgba - straight-alpha pixels
 */
export function palettise(rgba: Uint8Array, count: number): PalettisedPicture {
  const pixels: (Color | null)[] = [];
  for (let at = 0; at < rgba.length; at += 4) {
    pixels.push(rgba[at + 3]! < OPAQUE_FROM ? null : [rgba[at]!, rgba[at + 1]!, rgba[at + 2]!]);
  }
  const palette = medianCut(
    pixels.filter((pixel) => pixel !== null),
    count,
  );
  const known = new Map<number, number>();
  const indices = pixels.map((pixel) => {
    if (pixel === null) return null;
    const key = (pixel[0] << 16) | (pixel[1] << 8) | pixel[2];
    const index = known.get(key) ?? nearest(palette, pixel);
    known.set(key, index);
    return index;
  });
  return { palette, indices };
}

/** Splits the box with the longest side at its median until there are `count` boxes; each gives its mean colour. */
function medianCut(colors: Color[], count: number): Color[] {
  if (colors.length === 0) return [];
  const boxes = [colors];
  while (boxes.length < count) {
    const widest = boxes.reduce((best, box) => (longestSide(box).length > longestSide(best).length ? box : best));
    const { channel, length } = longestSide(widest);
    if (length === 0) break;
    widest.sort((a, b) => a[channel]! - b[channel]!);
    boxes.push(widest.splice(cutAt(widest, channel)));
  }
  return boxes.map(mean);
}

/** The middle, moved to where the colour changes, so that equal colours stay together and no half is empty. */
function cutAt(sorted: Color[], channel: number): number {
  let at = sorted.length >> 1;
  while (at < sorted.length && sorted[at]![channel] === sorted[at - 1]?.[channel]) at++;
  if (at < sorted.length && at > 0) return at;
  at = sorted.length >> 1;
  while (sorted[at]![channel] === sorted[at - 1]![channel]) at--;
  return at;
}

function longestSide(colors: Color[]): { channel: number; length: number } {
  const sides = [0, 1, 2].map((channel) => {
    let low = 255;
    let high = 0;
    for (const color of colors) {
      low = Math.min(low, color[channel]!);
      high = Math.max(high, color[channel]!);
    }
    return { channel, length: high - low };
  });
  return sides.reduce((best, side) => (side.length > best.length ? side : best));
}

function mean(colors: Color[]): Color {
  const sum = colors.reduce(([r, g, b], color) => [r + color[0], g + color[1], b + color[2]], [0, 0, 0]);
  return [0, 1, 2].map((channel) => Math.round(sum[channel]! / colors.length)) as Color;
}

function nearest(palette: Color[], color: Color): number {
  const distances = palette.map((c) => (c[0] - color[0]) ** 2 + (c[1] - color[1]) ** 2 + (c[2] - color[2]) ** 2);
  return distances.indexOf(Math.min(...distances));
}
