import { WIDEST_FLOAT } from '../../../model/float/floatFormats';
import type { Converter } from '../../../model/sheet/converters';
import type { BitFieldLayout } from './bitFieldLayout';

export const FIELD_FONT_SIZE = 12;
export const FIELD_LINE_HEIGHT = 18;
/** From the edges of a field to its text. */
export const FIELD_PADDING_Y = 3;
export const FIELD_PADDING_X = 4;
export const FIELD_GAP = 2;
export const FIELD_LABEL_WIDTH = 25;
/** Beside a field's text, with room for what the text's measured width may be short of. */
const FIELD_SIDES = 2 * FIELD_PADDING_X + 4;
/** From this width on, in bits, a field may be as narrow as half of its word. */
const WRAPPING_FROM = 128;
const LONGEST_FLOAT = 28;
const LONGEST_SMALL_FLOAT = 13;

/** A text field of a word and its place in the word's two columns. */
export interface FieldPlace {
  readonly fullWidth: boolean;
  /** Lines of text that its longest content takes. */
  readonly lines: number;
  /** Where the digits stand that are over their bits: the text's columns are the bits'. */
  readonly columns?: DigitColumns | undefined;
}

export interface DigitColumns {
  /** In a line. */
  readonly count: number;
  /** From the left of the fields to the first one, in pixels. */
  readonly left: number;
  /** From one to the next. */
  readonly pitch: number;
}

export interface FieldLayout {
  /** The main field, then one per converter. */
  readonly places: readonly FieldPlace[];
  readonly height: number;
}

/** Converters that a word of a width has a field for: wide words have no float view. */
export function convertersFor(converters: readonly Converter[], bits: number): Converter[] {
  return converters.filter(({ kind }) => kind === 'integer' || bits <= WIDEST_FLOAT);
}

/**
 * Places the fields of a word in two columns. A field whose longest content does not fit a column spans both; one that
 * would be left alone beside a gap does too.
 * @param boxWidth - pixels for both columns
 * @param charWidth - pixels of one digit
 * @param bitField - the word's bits: where they take several lines, a text in base 2 does as they do
 */
export function layoutFields(
  bits: number,
  converters: readonly Converter[],
  boxWidth: number,
  charWidth: number,
  bitField: BitFieldLayout,
): FieldLayout {
  const half = (boxWidth - FIELD_GAP) / 2;
  const lengths = [decimalLength(bits), ...converters.map((converter) => longestText(converter, bits))];
  const fields = lengths.map((length, position) => {
    const label = position === 0 ? 0 : FIELD_LABEL_WIDTH;
    const inLine = Math.max(1, Math.floor((boxWidth - label - FIELD_SIDES) / charWidth));
    const columns = length === bits ? columnsFor(bitField, boxWidth, inLine, charWidth) : undefined;
    const fits = !columns && length * charWidth + label + FIELD_SIDES <= half;
    return {
      fullWidth: !fits,
      lines: fits || (bits < WRAPPING_FROM && !columns) ? 1 : Math.ceil(length / (columns?.count ?? inLine)),
      columns,
    };
  });
  const places = stretchLonelyFields(fields);
  return { places, height: heightOf(places) };
}

/** The bits' columns where they take several lines, else whole bytes at the right where the text does. */
function columnsFor(
  bitField: BitFieldLayout,
  boxWidth: number,
  inLine: number,
  charWidth: number,
): DigitColumns | undefined {
  const { bits, vertical, bitsPerLine, left, byteWidth } = bitField;
  if (vertical) return { count: bitsPerLine, left, pitch: byteWidth / 8 };
  if (bits <= inLine) return undefined;
  const count = 2 ** Math.floor(Math.log2(inLine));
  return { count, left: boxWidth - FIELD_PADDING_X - count * charWidth, pitch: charWidth };
}

function stretchLonelyFields(fields: readonly FieldPlace[]): FieldPlace[] {
  const places: FieldPlace[] = [];
  for (let position = 0; position < fields.length; position++) {
    const field = fields[position]!;
    const next = fields[position + 1];
    if (field.fullWidth || !next || next.fullWidth) {
      places.push({ ...field, fullWidth: true });
      continue;
    }
    places.push(field, next);
    position++;
  }
  return places;
}

function heightOf(places: readonly FieldPlace[]): number {
  let height = 0;
  for (let position = 0; position < places.length; position += places[position]!.fullWidth ? 1 : 2) {
    height += places[position]!.lines * FIELD_LINE_HEIGHT + 2 * FIELD_PADDING_Y + FIELD_GAP;
  }
  return height;
}

function decimalLength(bits: number): number {
  return Math.ceil(bits * Math.log10(2)) + 1;
}

function longestText(converter: Converter, bits: number): number {
  switch (converter.kind) {
    case 'integer':
      return converter.base === 10 ? decimalLength(bits) : Math.ceil(bits / Math.log2(converter.base));
    case 'float':
      return bits === 8 ? LONGEST_SMALL_FLOAT : LONGEST_FLOAT;
  }
}
