/** Where a sheet was scrolled to, in CSS pixels. It never changes: every operation gives a new one. */
export class ScrollMap {
  static readonly empty = new ScrollMap(new Map(), undefined);

  /** Horizontal position of each row that was scrolled, by the row's key. */
  readonly rows: ReadonlyMap<string, number>;
  /** Vertical position of the whole sheet; undefined while nobody scrolled it. */
  readonly vertical: number | undefined;

  constructor(rows: ReadonlyMap<string, number>, vertical: number | undefined) {
    this.rows = rows;
    this.vertical = vertical;
  }

  withRow(key: string, position: number): ScrollMap {
    return this.withRows([key], position);
  }

  /** Puts every given row at one position, as a locked scroll does. */
  withRows(keys: Iterable<string>, position: number): ScrollMap {
    const rows = new Map(this.rows);
    for (const key of keys) rows.set(key, position);
    return new ScrollMap(rows, this.vertical);
  }

  withVertical(position: number): ScrollMap {
    return new ScrollMap(this.rows, position);
  }
}
