import type { CSSProperties } from 'react';
import {
  FIELD_FONT_SIZE,
  FIELD_GAP,
  FIELD_LABEL_WIDTH,
  FIELD_LINE_HEIGHT,
  FIELD_PADDING_X,
  FIELD_PADDING_Y,
} from './fieldLayout';
import {
  BLOCK_PADDING_X,
  BLOCK_PADDING_Y,
  HEADER_HEIGHT,
  LABELS_WIDTH,
  OPERATION_GAP,
  OPERATION_WIDTH,
  ROW_GAP,
  ROWS_SIDE,
  SCROLLBAR_HEIGHT,
} from './sheetGeometry';

const LENGTHS = {
  '--labels-width': LABELS_WIDTH,
  '--rows-side': ROWS_SIDE,
  '--row-gap': ROW_GAP,
  '--scrollbar-height': SCROLLBAR_HEIGHT,
  '--block-padding-x': BLOCK_PADDING_X,
  '--block-padding-y': BLOCK_PADDING_Y,
  '--header-height': HEADER_HEIGHT,
  '--operation-width': OPERATION_WIDTH,
  '--operation-gap': OPERATION_GAP,
  '--field-font-size': FIELD_FONT_SIZE,
  '--field-line-height': FIELD_LINE_HEIGHT,
  '--field-padding-x': FIELD_PADDING_X,
  '--field-padding-y': FIELD_PADDING_Y,
  '--field-height': FIELD_LINE_HEIGHT + 2 * FIELD_PADDING_Y,
  '--field-gap': FIELD_GAP,
  '--field-label-width': FIELD_LABEL_WIDTH,
};

/** The lengths that the layout is calculated from, as custom properties for the style sheets of what is laid out. */
export const geometryProperties: CSSProperties = Object.fromEntries(
  Object.entries(LENGTHS).map(([name, length]) => [name, `${length}px`]),
);
