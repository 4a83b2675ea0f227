import { Resvg } from '@resvg/resvg-js';
import { type IcoPicture,packIco } from './ico.ts';

const APP_SIZES = [16, 32, 48, 64, 128, 192, 256, 512];
const FAVICON_SIZES = [16, 24, 32, 48, 64, 128, 256];
const FAVICON_PNG_SIZE = 256;
const APPLE_SIZE = 180;
const WINDOWS_SIZES = [256, 128, 96, 64, 48, 32, 24, 16];
const WINDOWS_PALETTE_SIZES = [48, 32, 16];

/**
 * Renders every icon file of the page from one drawing.
 * @param svg - text of a square SVG
 * @returns file name within the build folder to content
 */
export function renderIcons(svg: string): Map<string, Uint8Array | string> {
  const files = new Map<string, Uint8Array | string>();
  for (const size of APP_SIZES) files.set(`app-icons/app-${size}.png`, render(svg, size).png);
  files.set('apple-touch-icon.png', render(svg, APPLE_SIZE).png);
  files.set('favicon.ico', packIco(FAVICON_SIZES.map((size) => render(svg, size))));
  files.set('favicon.png', render(svg, FAVICON_PNG_SIZE).png);
  files.set('favicon.svg', svg);
  return files;
}

/**
 * Renders the icon that goes into the Windows executable: 14 pictures, the palettised ones for old displays first.
 * @param svg - text of a square SVG
 */
export function renderWindowsIcon(svg: string): Uint8Array {
  const palettised = ([4, 8] as const).flatMap((bitsPerPixel) =>
    WINDOWS_PALETTE_SIZES.map((size) => ({ ...render(svg, size), bitsPerPixel })),
  );
  return packIco([...palettised, ...WINDOWS_SIZES.map((size) => render(svg, size))]);
}

function render(svg: string, size: number): IcoPicture {
  const image = new Resvg(svg, { fitTo: { mode: 'width', value: size }, font: { loadSystemFonts: false } }).render();
  return { size, png: image.asPng(), rgba: straightAlpha(image.pixels) };
}

/** The renderer's raw pixels carry colours multiplied by their alpha; icon bitmaps want them straight. */
function straightAlpha(premultiplied: Uint8Array): Uint8Array {
  const straight = new Uint8Array(premultiplied);
  for (let at = 0; at < straight.length; at += 4) {
    const alpha = straight[at + 3]!;
    if (alpha === 0 || alpha === 255) continue;
    for (let channel = at; channel < at + 3; channel++) {
      straight[channel] = Math.min(255, Math.round((straight[channel]! * 255) / alpha));
    }
  }
  return straight;
}
