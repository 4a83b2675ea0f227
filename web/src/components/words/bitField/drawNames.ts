import { bareRange } from '../../../model/range/namedRanges';
import { mono } from '../../../ui/tokens';
import { type BitFieldLayout, cellOf, LANE_HEIGHT } from '../layout/bitFieldLayout';
import type { BitFieldPalette } from './bitFieldPalette';
import type { NameLabel } from './nameLabels';

const FONT = `10px ${mono}`;
const PADDING = 3;

/** Draws names over their bits, in each line of bits that has some of them. */
export function drawNames(
  context: CanvasRenderingContext2D,
  layout: BitFieldLayout,
  palette: BitFieldPalette,
  labels: readonly NameLabel[],
): void {
  context.font = FONT;
  context.textAlign = 'center';
  context.textBaseline = 'middle';
  const charWidth = context.measureText('0').width;
  for (const { named, hi, lo, lane } of labels) {
    for (let top = hi; top >= lo; top = endOfLine(layout, top) - 1) {
      const first = cellOf(layout, top);
      const last = cellOf(layout, Math.max(lo, endOfLine(layout, top)));
      const width = last.x + last.width - first.x - 1;
      const y = first.y - (lane + 1) * LANE_HEIGHT;
      context.fillStyle = palette.name;
      context.fillRect(first.x, y, width, LANE_HEIGHT - 1);
      context.fillStyle = palette.nameText;
      const text = fitted(named.name, bareRange(named), Math.floor((width - PADDING) / charWidth));
      context.fillText(text, first.x + width / 2, y + LANE_HEIGHT / 2);
    }
  }
}

/** The lowest bit in the line of a bit. */
function endOfLine({ bits, bitsPerLine }: BitFieldLayout, bit: number): number {
  return bits - (Math.floor((bits - 1 - bit) / bitsPerLine) + 1) * bitsPerLine;
}

/** A name with its bits, alone, or as much of it as there is room for. */
function fitted(name: string, bits: string, room: number): string {
  const whole = `${name} ${bits}`;
  if (whole.length <= room) return whole;
  return name.length <= room ? name : `${name.slice(0, Math.max(1, room - 1))}${room > 1 ? '…' : ''}`;
}
