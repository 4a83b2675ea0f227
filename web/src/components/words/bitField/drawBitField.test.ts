import fc from 'fast-check';
import { afterEach, beforeEach, expect, test, vi } from 'vitest';
import { bitFieldLayout } from '../layout/bitFieldLayout';
import { DARK_PALETTE } from './bitFieldPalette';
import { type BitFieldPicture, drawBitField } from './drawBitField';

/** The colours that a canvas shows at each of its pixels; a text is one pixel. */
class Pixels {
  fillStyle = '';
  strokeStyle = '';
  lineWidth = 1;
  readonly colors: string[];
  constructor(
    readonly width: number,
    readonly height: number,
  ) {
    this.colors = new Array<string>(width * height).fill('');
  }
  setTransform() {}
  scale() {}
  fillText(_text: string, x: number, y: number) {
    this.fillRect(x, y, 1, 1);
  }
  drawImage({ pixels }: PixelCanvas, x: number, y: number) {
    for (let line = 0; line < pixels.height; line++)
      for (let place = 0; place < pixels.width; place++)
        this.fillRect(x + place, y + line, 1, 1, pixels.colors[line * pixels.width + place]);
  }
  fillRect(x: number, y: number, width: number, height: number, color = this.fillStyle) {
    for (let line = Math.round(y); line < Math.round(y + height); line++)
      for (let place = Math.round(x); place < Math.round(x + width); place++)
        this.colors[line * this.width + place] = color;
  }
  clearRect(x: number, y: number, width: number, height: number) {
    this.fillRect(x, y, width, height, '');
  }
  strokeRect(x: number, y: number, width: number, height: number) {
    const half = this.lineWidth / 2;
    const color = this.strokeStyle;
    for (const top of [y, y + height]) this.fillRect(x - half, top - half, width + 2 * half, 2 * half, color);
    for (const left of [x, x + width]) this.fillRect(left - half, y - half, 2 * half, height + 2 * half, color);
  }
}

/** What the page makes for a picture of a cell. */
class PixelCanvas {
  width = 0;
  height = 0;
  pixels!: Pixels;
  getContext() {
    return (this.pixels = new Pixels(this.width, this.height));
  }
}

beforeEach(() => void vi.stubGlobal('document', { createElement: () => new PixelCanvas() }));
afterEach(() => void vi.unstubAllGlobals());

const NONE = { changed: 0n, difference: 0n, range: 0n };

function picture(bits: number, outlines: Partial<BitFieldPicture['outlines']>, cursor?: number): BitFieldPicture {
  return {
    layout: layouts[bits]!,
    pixelRatio: 1,
    palette: DARK_PALETTE,
    digits: '01'.repeat(bits / 2),
    hovered: undefined,
    cursor,
    outlines: { ...NONE, ...outlines },
  };
}

const layouts = { 32: bitFieldLayout(32, 640, 640, false), 128: bitFieldLayout(128, 1280, 700, false) } as Record<
  number,
  ReturnType<typeof bitFieldLayout>
>;

function draw(...pictures: BitFieldPicture[]): string[] {
  const { width, height } = pictures[0]!.layout;
  const pixels = new Pixels(width, height);
  pictures.forEach((each, at) =>
    drawBitField(pixels as unknown as CanvasRenderingContext2D, each, at > 0 ? pictures[at - 1] : undefined),
  );
  return pixels.colors;
}

const count = (colors: string[], color: string) => colors.filter((each) => each === color).length;

test('marks that come and go leave no trace behind', () => {
  const word = fc.bigInt({ min: 0n, max: (1n << 128n) - 1n });
  const marks = fc.tuple(fc.record({ changed: word, difference: word, range: word }), fc.nat(127));
  fc.assert(
    fc.property(fc.constantFrom(32, 128), marks, marks, (bits, ...states) => {
      const [first, second] = states.map(([outlines, cursor]) => {
        const cut = (value: bigint) => BigInt.asUintN(bits, value);
        const { changed, difference, range } = outlines;
        const inWord = { changed: cut(changed), difference: cut(difference), range: cut(range) };
        return picture(bits, inWord, cursor % bits);
      });
      expect(draw(first!, second!)).toEqual(draw(second!));
    }),
    { numRuns: 40 },
  );
});

test('a range has one contour, which is open where it goes on in the next line', () => {
  const { cellHeight } = layouts[32]!;
  const verticals = (bits: number, range: bigint) => {
    const colors = draw(picture(bits, { range }));
    const { width, lineHeight } = layouts[bits]!;
    const lines = Math.floor(colors.length / width / lineHeight);
    return Array.from({ length: lines }, (_, line) => {
      const start = (line * lineHeight + cellHeight / 2) * width;
      return count(colors.slice(start, start + width), DARK_PALETTE.range) / 2;
    });
  };
  expect(verticals(32, 0x00fff000n)).toEqual([2]);
  expect(verticals(32, 0b1011n)).toEqual([4]);
  const { bitsPerLine } = layouts[128]!;
  const twoLines = ((1n << 10n) - 1n) << BigInt(bitsPerLine - 5);
  expect(verticals(128, twoLines).slice(-2)).toEqual([1, 1]);
});

test('bits that differ and the range over them are both seen', () => {
  const colors = draw(picture(32, { range: 0xffn, difference: 0x0fn }));
  expect(count(colors, DARK_PALETTE.range)).toBeGreaterThan(0);
  expect(count(colors, DARK_PALETTE.difference)).toBeGreaterThan(0);
});

test('a bit that is copied looks like one that is drawn', () => {
  const layout = bitFieldLayout(128, 1281, 731, false);
  const other = { ...picture(128, {}), layout };
  const noPictures = vi.spyOn(PixelCanvas.prototype, 'getContext').mockReturnValue(null as never);
  const drawn = draw(other);
  noPictures.mockRestore();
  const copy = vi.spyOn(Pixels.prototype, 'drawImage');
  expect(draw(other)).toEqual(drawn);
  expect(copy).toHaveBeenCalledTimes(128);
});
