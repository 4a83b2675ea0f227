import { directOperations } from '../../../commands/operationIcons';
import { floatFormatFor } from '../../../model/float/floatFormats';
import { wordCount } from '../../../model/integer/wordLayout';
import { activeConverters, type Converter } from '../../../model/sheet/converters';
import type { NumberDefinition, NumberType } from '../../../model/sheet/numberDefinitions';
import { definitionLabel, definitionShortLabel, shownDefinitions } from '../../../model/sheet/numberDefinitions';
import { type BitFieldLayout, bitFieldLayout } from './bitFieldLayout';
import { convertersFor, type FieldLayout, layoutFields } from './fieldLayout';

/** Width of a byte in every row, in pixels: words below each other are aligned. */
const NARROWEST_BYTE = 140;
const WIDEST_BYTE = 210;
/** The rows' labels at the left. */
export const LABELS_WIDTH = 20;
/** Room at the right of the rows. */
export const ROWS_SIDE = 6;
export const ROW_GAP = 6;
export const SCROLLBAR_HEIGHT = 9;
/** From the edges of a block to its content. */
export const BLOCK_PADDING_Y = 5;
export const BLOCK_PADDING_X = 7;
/** One line of a word's header. */
export const HEADER_HEIGHT = 26;
/** A button in a header, and the room between two. */
export const OPERATION_WIDTH = 24;
export const OPERATION_GAP = 1;
const HEADER_CHAR_WIDTH = 7;
/** Around what a header says, and between its parts. */
const HEADER_SPACE = 28;
const COLOR_BODY_HEIGHT = 50;
const NARROWEST_COLOR_BOX = 300;

/** One row of words; its blocks are of one size. All lengths are CSS pixels. */
export interface RowGeometry {
  readonly key: string;
  readonly type: NumberType;
  readonly bits: number;
  readonly label: string;
  readonly shortLabel: string;
  readonly count: number;
  readonly height: number;
  readonly blockWidth: number;
  /** The part of a block that stays in view while the row scrolls. */
  readonly boxWidth: number;
  readonly converters: readonly Converter[];
  readonly fields: FieldLayout;
  readonly bitField: BitFieldLayout;
  /** The operations take a line of their own where they do not fit beside the rest. */
  readonly headerLines: number;
  /** A row whose only word stays in view has nothing to scroll. */
  readonly scrolls: boolean;
}

export interface SheetGeometry {
  readonly rows: readonly RowGeometry[];
  /** Where each row begins. They are no part of it: a row that only moves stays the same. */
  readonly tops: readonly number[];
  /** Of every row's content. */
  readonly width: number;
  readonly height: number;
  /** Rows are wider than the view. */
  readonly overflows: boolean;
}

export interface SheetShape {
  readonly resolution: number;
  readonly definitions: readonly NumberDefinition[];
  readonly converters: readonly string[] | undefined;
  /** Lines of names over each line of bits. */
  readonly nameLanes?: number;
  readonly viewWidth: number;
  /** Width of one digit. */
  readonly charWidth: number;
}

/** Identifies a row within its sheet, also where its scroll position is kept. */
export function rowKey({ type, bits }: Pick<NumberDefinition, 'type' | 'bits'>): string {
  return `${type}:${bits}`;
}

/** Where everything of a sheet is, known without looking at the page. */
export function sheetGeometry({
  resolution,
  definitions,
  converters,
  nameLanes = 0,
  viewWidth,
  charWidth,
}: SheetShape): SheetGeometry {
  const bytes = resolution / 8;
  const byteWidth = Math.max(NARROWEST_BYTE, Math.min(WIDEST_BYTE, Math.floor(viewWidth / bytes)));
  const width = byteWidth * bytes;
  const overflows = width > viewWidth;
  const active = activeConverters(converters);
  const rows: RowGeometry[] = [];
  const tops: number[] = [];
  let top = 0;
  for (const definition of shownDefinitions(definitions)) {
    const row = rowGeometry(definition, wordCount(resolution, definition.bits), {
      byteWidth,
      viewWidth,
      charWidth,
      overflows,
      active,
      nameLanes,
    });
    if (row.count === 0) continue;
    rows.push(row);
    tops.push(top);
    top += row.height + ROW_GAP;
  }
  return { rows, tops, width, height: top, overflows };
}

/**
 * Where something of a sheet stands when its rows have other heights.
 * @param position - in pixels from the top of the sheet
 * @returns where the next row begins when its own has gone; the same position when no row from there on is left
 */
export function carriedOver(position: number, from: SheetGeometry, to: SheetGeometry): number {
  const place = from.tops.findLastIndex((top) => top <= position);
  if (place < 0) return position;
  const newPlaces = from.rows.slice(place).map((row) => to.rows.findIndex(({ key }) => key === row.key));
  const newPlace = newPlaces.find((each) => each >= 0);
  if (newPlace === undefined) return position;
  const isOwn = newPlace === newPlaces[0];
  const share = isOwn ? (position - from.tops[place]!) / (from.rows[place]!.height + ROW_GAP) : 0;
  return to.tops[newPlace]! + share * (to.rows[newPlace]!.height + ROW_GAP);
}

interface Shared {
  byteWidth: number;
  viewWidth: number;
  charWidth: number;
  overflows: boolean;
  active: readonly Converter[];
  nameLanes: number;
}

function rowGeometry(definition: NumberDefinition, count: number, shared: Shared): RowGeometry {
  const { type, bits } = definition;
  const blockWidth = (bits / 8) * shared.byteWidth;
  const boxWidth = Math.min(blockWidth, Math.max(shared.viewWidth, NARROWEST_BYTE)) - 2 * BLOCK_PADDING_X;
  const converters = convertersFor(shared.active, bits);
  const labelled = converters.some(({ kind }) => kind === 'float') && floatFormatFor(bits) !== undefined;
  const bitField = bitFieldLayout(bits, blockWidth, boxWidth, labelled, shared.nameLanes);
  const fields = layoutFields(bits, converters, boxWidth, shared.charWidth, bitField);
  const headerLines = headerLinesFor(bits, count, boxWidth);
  const header = headerLines * HEADER_HEIGHT;
  const body = type === 'color32' ? colorHeight(boxWidth) : header + fields.height + bitField.height;
  const scrolls = shared.overflows && (count > 1 || !bitField.vertical);
  const height = body + 2 * BLOCK_PADDING_Y + (scrolls ? SCROLLBAR_HEIGHT : 0);
  return {
    key: rowKey(definition),
    type,
    bits,
    label: definitionLabel(definition),
    shortLabel: definitionShortLabel(definition),
    count,
    height,
    blockWidth,
    boxWidth,
    converters,
    fields,
    bitField,
    headerLines,
    scrolls,
  };
}

function headerLinesFor(bits: number, count: number, boxWidth: number): number {
  const half = count > 1 ? `LO:${2 * bits}` : '';
  const said = `${count}${bits}U${half}`.length * HEADER_CHAR_WIDTH + HEADER_SPACE;
  const direct = directOperations(bits);
  const operations = direct * (OPERATION_WIDTH + OPERATION_GAP);
  return bits === 8 || said + operations > boxWidth ? 2 : 1;
}

function colorHeight(boxWidth: number): number {
  return HEADER_HEIGHT + (isNarrowColor(boxWidth) ? 2 : 1) * COLOR_BODY_HEIGHT;
}

/** Whether the fields of a color take twice as many lines. @param boxWidth - in pixels */
export function isNarrowColor(boxWidth: number): boolean {
  return boxWidth < NARROWEST_COLOR_BOX;
}

/**
 * Which of the equal-sized parts of a strip are in or near a view.
 * @returns first and last, both included; last is below first when there are none
 */
export function partsInView(
  count: number,
  size: number,
  scrolled: number,
  viewSize: number,
  margin: number,
): [first: number, last: number] {
  const first = Math.max(0, Math.floor((scrolled - margin) / size));
  const last = Math.min(count - 1, Math.floor((scrolled + viewSize + margin - 1) / size));
  return [first, last];
}
