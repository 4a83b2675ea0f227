import { floatFields, floatFormatFor } from '../../../model/float/floatFormats';
import { setBits } from '../../../model/integer/setBits';
import { OUTLINE_KINDS, type OutlineKind } from '../../../stores/bitOutlines';
import { mono } from '../../../ui/tokens';
import { type BitFieldLayout, cellOf, type Rect } from '../layout/bitFieldLayout';
import { type BitFieldPalette, textColorOn } from './bitFieldPalette';
import { type CellLook, cellPicture, fillCell, writeDigit } from './cellPicture';
import { drawNames } from './drawNames';
import type { NameLabel } from './nameLabels';

/** What a bit field shows at one moment. */
export interface BitFieldPicture {
  readonly layout: BitFieldLayout;
  /** Device pixels per CSS pixel. */
  readonly pixelRatio: number;
  readonly palette: BitFieldPalette;
  /** Over the bits; absent for none. */
  readonly names?: readonly NameLabel[];
  /** One character per bit, the most significant first. */
  readonly digits: string;
  /** The bit under the pointer, counted from 0 at the least significant end. */
  readonly hovered: number | undefined;
  /** The bit that the keyboard acts on. */
  readonly cursor: number | undefined;
  /** Of the word's width; a one for each bit that is outlined. */
  readonly outlines: WordOutlines;
}

/** The outlined bits of one word, by the reason for it. */
export type WordOutlines = Readonly<Record<OutlineKind, bigint>>;

const SMALL_FONT = `9px ${mono}`;
const LABEL_FONT = '11px system-ui, sans-serif';
const CELL_GAP = 1;
const BAR_HEIGHT = 3;
const RANGE_LINE = 2;

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
  const keeps =
    drawn &&
    drawn.layout === layout &&
    drawn.pixelRatio === pixelRatio &&
    drawn.palette === palette &&
    drawn.names === picture.names;
  context.setTransform(pixelRatio, 0, 0, pixelRatio, 0, 0);
  if (!keeps) {
    context.clearRect(0, 0, layout.width, layout.height);
    drawNumbers(context, picture);
    if (layout.hasFieldLabels) drawFieldLabels(context, picture);
    if (picture.names) drawNames(context, layout, palette, picture.names);
  }
  const colors = layout.hasFieldLabels ? fieldColors(layout.bits) : undefined;
  // On whole device pixels nothing is between two of a picture.
  context.imageSmoothingEnabled = false;
  const bits = keeps ? bitsThatDiffer(picture, drawn) : Array.from({ length: layout.bits }, (_, bit) => bit);
  for (const bit of bits) {
    if (keeps) clearGap(context, picture, bit);
    drawCell(context, picture, bit, colors?.[bit]);
  }
}

function bitsThatDiffer(picture: BitFieldPicture, drawn: BitFieldPicture): Iterable<number> {
  const bits = new Set<number>();
  for (const mark of ['hovered', 'cursor'] as const) {
    if (picture[mark] === drawn[mark]) continue;
    for (const bit of [picture[mark], drawn[mark]]) if (bit !== undefined) bits.add(bit);
  }
  for (const kind of OUTLINE_KINDS) {
    const differing = picture.outlines[kind] ^ drawn.outlines[kind];
    // Where a range ends is seen on both sides.
    for (const bit of setBits(kind === 'range' ? differing | (differing << 1n) | (differing >> 1n) : differing))
      if (bit < picture.layout.bits) bits.add(bit);
  }
  if (picture.digits === drawn.digits) return bits;
  const last = picture.layout.bits - 1;
  for (let place = 0; place <= last; place++) {
    if (picture.digits.charCodeAt(place) !== drawn.digits.charCodeAt(place)) bits.add(last - place);
  }
  return bits;
}

function drawCell(context: CanvasRenderingContext2D, picture: BitFieldPicture, bit: number, color?: string): void {
  const cell = snapped(cellOf(picture.layout, bit), picture.pixelRatio);
  const look = lookOf(picture, bit, color);
  const mark = markColor(picture, bit);
  const isInRange = hasBit(picture.outlines.range, bit);
  const ready = !mark && !isInRange && cellPicture(cell, look, picture.pixelRatio);
  if (ready) context.drawImage(ready, cell.x, cell.y, cell.width, cell.height);
  else fillCell(context, cell, look);
  drawRange(context, picture, bit, cell);
  if (mark) {
    context.strokeStyle = mark;
    context.lineWidth = 2;
    const inset = isInRange ? 1 + RANGE_LINE : 1;
    context.strokeRect(cell.x + inset, cell.y + inset, cell.width - 2 * inset, cell.height - 2 * inset);
  }
  if (!ready) writeDigit(context, cell, look);
}

function lookOf({ layout, palette, digits }: BitFieldPicture, bit: number, color?: string): CellLook {
  if (digits[layout.bits - 1 - bit] !== '1') {
    return { digit: '0', background: palette.zero, color: palette.zeroText };
  }
  return { digit: '1', background: color ?? palette.one, color: color ? textColorOn(color) : palette.oneText };
}

function markColor({ cursor, hovered, outlines, palette }: BitFieldPicture, bit: number): string | undefined {
  if (cursor === bit) return palette.cursor;
  if (hovered === bit) return palette.hover;
  if (hasBit(outlines.changed, bit)) return palette.changed;
  return hasBit(outlines.difference, bit) ? palette.difference : undefined;
}

function hasBit(bits: bigint, bit: number): boolean {
  return bits !== 0n && ((bits >> BigInt(bit)) & 1n) === 1n;
}

/** The part of a range's contour around one bit: it is open where the range goes on, also over the gap to the next bit. */
function drawRange(
  context: CanvasRenderingContext2D,
  { layout, outlines, palette, pixelRatio }: BitFieldPicture,
  bit: number,
  cell: Rect,
): void {
  const { range } = outlines;
  if (!hasBit(range, bit)) return;
  const goesOn = bit > 0 && hasBit(range, bit - 1);
  const width = cell.width + (goesOn ? gapBeside(layout, bit, cell, pixelRatio) : 0);
  const [right, bottom] = [cell.x + cell.width - RANGE_LINE, cell.y + cell.height - RANGE_LINE];
  context.fillStyle = palette.range;
  context.fillRect(cell.x, cell.y, width, RANGE_LINE);
  context.fillRect(cell.x, bottom, width, RANGE_LINE);
  if (!hasBit(range, bit + 1)) context.fillRect(cell.x, cell.y, RANGE_LINE, cell.height);
  if (!goesOn) context.fillRect(right, cell.y, RANGE_LINE, cell.height);
}

/** Takes away what a range that went on left between a bit and the next one. */
function clearGap(context: CanvasRenderingContext2D, { layout, pixelRatio }: BitFieldPicture, bit: number): void {
  const cell = snapped(cellOf(layout, bit), pixelRatio);
  context.clearRect(cell.x + cell.width, cell.y, gapBeside(layout, bit, cell, pixelRatio), cell.height);
}

/** From a cell to the next one of its line. */
function gapBeside(layout: BitFieldLayout, bit: number, cell: Rect, pixelRatio: number): number {
  const isLast = bit % layout.bitsPerLine === 0;
  return isLast ? 0 : snapped(cellOf(layout, bit - 1), pixelRatio).x - cell.x - cell.width;
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
  const bottom = layout.top - layout.lanesHeight;
  let top = layout.bits - 1;
  for (const { label, bits, color } of floatFields(floatFormatFor(layout.bits)!)) {
    const first = cellOf(layout, top);
    const bitsInFirstLine = Math.min(bits, layout.bitsPerLine - ((layout.bits - 1 - top) % layout.bitsPerLine));
    const last = cellOf(layout, top - bitsInFirstLine + 1);
    const width = last.x + last.width - first.x;
    context.fillStyle = color;
    context.fillRect(first.x + CELL_GAP, bottom - BAR_HEIGHT - 1, width - 2 * CELL_GAP, BAR_HEIGHT);
    context.fillStyle = palette.labels;
    context.fillText(label, first.x + width / 2, bottom - BAR_HEIGHT - 4, width);
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
