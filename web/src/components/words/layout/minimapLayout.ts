import type { SheetGeometry } from './sheetGeometry';

/** A target for a pointer has at least this height, in pixels. */
const LOWEST = 24;

/** Where a sheet's rows are on its minimap, where none is lower than a pointer needs. Lengths are CSS pixels. */
export class MinimapLayout {
  /** Heights of the rows on the map, from top to bottom. */
  readonly heights: readonly number[];
  /** Edges of the rows: in the sheet, and on the map. */
  private readonly inSheet: readonly number[];
  private readonly onMap: readonly number[];

  constructor({ rows, tops, height }: SheetGeometry, mapHeight: number) {
    const lowest = Math.min(LOWEST, mapHeight / Math.max(1, rows.length));
    const rest = mapHeight - lowest * rows.length;
    this.inSheet = [...tops, height];
    const shares = rows.map((_, index) => (this.inSheet[index + 1]! - this.inSheet[index]!) / height);
    this.heights = shares.map((share) => lowest + rest * share);
    let edge = 0;
    this.onMap = [0, ...this.heights.map((each) => (edge += each))];
  }

  toMap(position: number): number {
    return between(position, this.inSheet, this.onMap);
  }

  toSheet(position: number): number {
    return between(position, this.onMap, this.inSheet);
  }
}

/** A position carried over from one row of edges to another; positions outside are at the nearest edge. */
function between(position: number, from: readonly number[], to: readonly number[]): number {
  const last = from.length - 2;
  let part = 0;
  while (part < last && position >= from[part + 1]!) part++;
  const share = (position - from[part]!) / (from[part + 1]! - from[part]!);
  return to[part]! + Math.max(0, Math.min(1, share)) * (to[part + 1]! - to[part]!);
}
