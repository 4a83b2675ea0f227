/** From this width on, in bits, the bits of a word are laid out in lines below each other. */
const VERTICAL_FROM = 100;
/** Bits in a line: as many as there is room for with cells of this width, in pixels. */
const LINE_LENGTHS = [64, 32, 16, 8];
const NARROWEST_CELL = 12;
const BYTE_INSET = 6;
const NIBBLE_GAP = 4;
const LINE_GAP = 4;
const CELL_HEIGHT = 20;
const NUMBERS_HEIGHT = 13;
const FIELD_LABELS_HEIGHT = 17;
const LINE_NUMBER_WIDTH = 40;
/** Of a line of names over the bits. */
export const LANE_HEIGHT = 14;

/** Where every bit of a word is drawn. All lengths are CSS pixels from the top left corner of the canvas. */
export interface BitFieldLayout {
  readonly bits: number;
  readonly vertical: boolean;
  readonly bitsPerLine: number;
  readonly width: number;
  readonly height: number;
  /** Where the first line's cells begin. */
  readonly left: number;
  readonly top: number;
  readonly byteWidth: number;
  readonly cellWidth: number;
  readonly cellHeight: number;
  /** From the names of one line to those of the next. */
  readonly lineHeight: number;
  /** Of the names above each line's cells. */
  readonly lanesHeight: number;
  readonly hasFieldLabels: boolean;
}

export interface Rect {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
}

/**
 * @param bits - width of the word
 * @param blockWidth - the whole block; a horizontal field fills it, so that the bits of all rows are aligned
 * @param boxWidth - the part of the block that stays in view; a vertical field fills it
 * @param hasFieldLabels - leaves room for the names of a float's parts
 * @param nameLanes - leaves room for so many lines of names over each line of bits
 */
export function bitFieldLayout(
  bits: number,
  blockWidth: number,
  boxWidth: number,
  hasFieldLabels: boolean,
  nameLanes = 0,
): BitFieldLayout {
  const vertical = bits >= VERTICAL_FROM;
  const labelsHeight = hasFieldLabels ? FIELD_LABELS_HEIGHT : 0;
  const lanesHeight = nameLanes * LANE_HEIGHT;
  const width = vertical ? boxWidth : blockWidth;
  const left = vertical ? LINE_NUMBER_WIDTH : 0;
  const bitsPerLine = vertical ? bitsInLine(width - left) : bits;
  const byteWidth = ((width - left) * 8) / bitsPerLine;
  const lines = bits / bitsPerLine;
  const lineHeight = CELL_HEIGHT + (vertical ? LINE_GAP : NUMBERS_HEIGHT) + lanesHeight;
  const cellWidth = cellWidthFor(byteWidth);
  return {
    bits,
    vertical,
    bitsPerLine,
    width,
    height: labelsHeight + lines * lineHeight,
    left,
    top: labelsHeight + lanesHeight,
    byteWidth,
    cellWidth,
    cellHeight: CELL_HEIGHT,
    lineHeight,
    lanesHeight,
    hasFieldLabels,
  };
}

function bitsInLine(width: number): number {
  return LINE_LENGTHS.find((bits) => cellWidthFor((width * 8) / bits) >= NARROWEST_CELL) ?? 8;
}

function cellWidthFor(byteWidth: number): number {
  return (byteWidth - 2 * BYTE_INSET - NIBBLE_GAP) / 8;
}

/** @param bit - counted from 0 at the least significant end, which is drawn last */
export function cellOf(layout: BitFieldLayout, bit: number): Rect {
  const position = layout.bits - 1 - bit;
  const line = Math.floor(position / layout.bitsPerLine);
  const inLine = position % layout.bitsPerLine;
  const inByte = inLine % 8;
  return {
    x:
      layout.left +
      Math.floor(inLine / 8) * layout.byteWidth +
      BYTE_INSET +
      inByte * layout.cellWidth +
      (inByte >= 4 ? NIBBLE_GAP : 0),
    y: layout.top + line * layout.lineHeight,
    width: layout.cellWidth,
    height: layout.cellHeight,
  };
}

/** The bit nearest to a point; there are no dead places between bits. Points outside give the bit at the edge. */
export function bitAt(layout: BitFieldLayout, x: number, y: number): number {
  const lines = layout.bits / layout.bitsPerLine;
  const line = clamp(Math.floor((y - layout.top + layout.lanesHeight) / layout.lineHeight), lines - 1);
  const bytes = layout.bitsPerLine / 8;
  const byte = clamp(Math.floor((x - layout.left) / layout.byteWidth), bytes - 1);
  const inset = x - layout.left - byte * layout.byteWidth - BYTE_INSET;
  const beyondGap = inset >= 4 * layout.cellWidth + NIBBLE_GAP / 2 ? inset - NIBBLE_GAP : inset;
  const inByte = clamp(Math.floor(beyondGap / layout.cellWidth), 7);
  return layout.bits - 1 - (line * layout.bitsPerLine + byte * 8 + inByte);
}

function clamp(value: number, most: number): number {
  return Math.max(0, Math.min(most, value));
}
