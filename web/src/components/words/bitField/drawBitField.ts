import { floatFields, floatFormatFor } from '../../../model/float/floatFormats';
import { mono } from '../../../ui/tokens';
import { type BitFieldLayout, cellOf, type Rect } from '../layout/bitFieldLayout';
import { type BitFieldPalette, textColorOn } from './bitFieldPalette';

/** What a bit field shows at one moment. */
export interface BitFieldPicture {
  readonly layout: BitFieldLayout;
  /** Device pixels per CSS pixel. */
  readonly pixelRatio: number;
  readonly palette: BitFieldPalette;
  /** One character per bit, the most significant first. */
  readonly digits: string;
  /** The bit under the pointer, counted from 0 at the least significant end. */
  readonly hovered: number | undefined;
  /** The bit that the keyboard acts on. */
  readonly cursor: number | undefined;
  /** Of the word's width; a one for each bit that is outlined as changed. */
  readonly changed: bigint;
}

const DIGIT_FONT = `12px ${mono}`;
const SMALL_FONT = `9px ${mono}`;
const LABEL_FONT = '11px system-ui, sans-serif';
const CELL_GAP = 1;
const BAR_HEIGHT = 3;

/**
 * Draws a bit field, the whole of it or only what differs from what is there. Expects a canvas of the layout's size in
 * device pixels.
 * @param drawn - what the canvas shows; undefined to draw everything
 */
export function drawBitField(
  context: CanvasRenderingContext2D,
  picture: BitFieldPicture,
  drawn: BitFieldPicture | undefined,
): void {
  const { layout, pixelRatio, palette } = picture;
  const keeps = drawn && drawn.layout === layout && drawn.pixelRatio === pixelRatio && drawn.palette === palette;
  context.setTransform(pixelRatio, 0, 0, pixelRatio, 0, 0);
  if (!keeps) {
    context.clearRect(0, 0, layout.width, layout.height);
    drawNumbers(context, picture);
    if (layout.hasFieldLabels) drawFieldLabels(context, picture);
  }
  const colors = layout.hasFieldLabels ? fieldColors(layout.bits) : undefined;
  context.font = DIGIT_FONT;
  context.textAlign = 'center';
  context.textBaseline = 'middle';
  const bits = keeps ? bitsThatDiffer(picture, drawn) : Array.from({ length: layout.bits }, (_, bit) => bit);
  for (const bit of bits) drawCell(context, picture, bit, colors?.[bit]);
}

function bitsThatDiffer(picture: BitFieldPicture, drawn: BitFieldPicture): Iterable<number> {
  const bits = new Set<number>();
  for (const mark of ['hovered', 'cursor'] as const) {
    if (picture[mark] === drawn[mark]) continue;
    for (const bit of [picture[mark], drawn[mark]]) if (bit !== undefined) bits.add(bit);
  }
  for (const bit of setBits(picture.changed ^ drawn.changed)) bits.add(bit);
  if (picture.digits === drawn.digits) return bits;
  const last = picture.layout.bits - 1;
  for (let place = 0; place <= last; place++) {
    if (picture.digits.charCodeAt(place) !== drawn.digits.charCodeAt(place)) bits.add(last - place);
  }
  return bits;
}

function setBits(word: bigint): number[] {
  if (word === 0n) return [];
  const digits = [...word.toString(2)].reverse();
  return digits.flatMap((digit, bit) => (digit === '1' ? bit : []));
}

function drawCell(context: CanvasRenderingContext2D, picture: BitFieldPicture, bit: number, color?: string): void {
  const { layout, palette, digits } = picture;
  const isOne = digits[layout.bits - 1 - bit] === '1';
  const cell = snapped(cellOf(layout, bit), picture.pixelRatio);
  const background = isOne ? (color ?? palette.one) : palette.zero;
  context.fillStyle = background;
  context.fillRect(cell.x, cell.y, cell.width, cell.height);
  const mark = markColor(picture, bit);
  if (mark) {
    context.strokeStyle = mark;
    context.lineWidth = 2;
    context.strokeRect(cell.x + 1, cell.y + 1, cell.width - 2, cell.height - 2);
  }
  context.fillStyle = isOne ? (color ? textColorOn(color) : palette.oneText) : palette.zeroText;
  context.fillText(isOne ? '1' : '0', cell.x + cell.width / 2, cell.y + cell.height / 2 + 0.5);
}

function markColor({ cursor, hovered, changed, palette }: BitFieldPicture, bit: number): string | undefined {
  if (cursor === bit) return palette.cursor;
  if (hovered === bit) return palette.hover;
  return changed !== 0n && ((changed >> BigInt(bit)) & 1n) === 1n ? palette.changed : undefined;
}

/** Numbers of the bits at both ends of each byte, or of the first bit of each line. */
function drawNumbers(context: CanvasRenderingContext2D, { layout, palette }: BitFieldPicture): void {
  context.font = SMALL_FONT;
  context.fillStyle = palette.numbers;
  context.textBaseline = 'middle';
  const step = layout.vertical ? layout.bitsPerLine : 8;
  for (let top = layout.bits - 1; top >= 0; top -= step) {
    const first = cellOf(layout, top);
    if (layout.vertical) {
      context.textAlign = 'right';
      context.fillText(`${top}`, layout.left - 2, first.y + first.height / 2);
      continue;
    }
    const last = cellOf(layout, top - 7);
    const y = first.y + first.height + 6;
    context.textAlign = 'left';
    context.fillText(`${top}`, first.x + CELL_GAP, y);
    context.textAlign = 'right';
    context.fillText(`${top - 7}`, last.x + last.width - CELL_GAP, y);
  }
}

function drawFieldLabels(context: CanvasRenderingContext2D, { layout, palette }: BitFieldPicture): void {
  context.font = LABEL_FONT;
  context.textBaseline = 'alphabetic';
  context.textAlign = 'center';
  let top = layout.bits - 1;
  for (const { label, bits, color } of floatFields(floatFormatFor(layout.bits)!)) {
    const first = cellOf(layout, top);
    const bitsInFirstLine = Math.min(bits, layout.bitsPerLine - ((layout.bits - 1 - top) % layout.bitsPerLine));
    const last = cellOf(layout, top - bitsInFirstLine + 1);
    const width = last.x + last.width - first.x;
    context.fillStyle = color;
    context.fillRect(first.x + CELL_GAP, layout.top - BAR_HEIGHT - 1, width - 2 * CELL_GAP, BAR_HEIGHT);
    context.fillStyle = palette.labels;
    context.fillText(label, first.x + width / 2, layout.top - BAR_HEIGHT - 4, width);
    top -= bits;
  }
}

/** The colour of the float's part that each bit belongs to. */
function fieldColors(bits: number): readonly string[] {
  return (fieldColorTables[bits] ??= floatFields(floatFormatFor(bits)!)
    .flatMap((field) => Array.from({ length: field.bits }, () => field.color))
    .reverse());
}

const fieldColorTables: Record<number, readonly string[]> = {};

// On whole device pixels edges are sharp, and drawing a cell again leaves no trace of what it was before.
function snapped({ x, y, width, height }: Rect, ratio: number): Rect {
  const snap = (length: number) => Math.round(length * ratio) / ratio;
  const gap = Math.max(1, Math.round(CELL_GAP * ratio)) / ratio;
  const [left, top] = [snap(x), snap(y)];
  return { x: left, y: top, width: snap(x + width) - left - gap, height: snap(y + height) - top - gap };
}
