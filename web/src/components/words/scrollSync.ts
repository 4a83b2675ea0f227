import { hasFlagOption, SCROLL_LOCK_HORIZONTAL } from '../../model/sheet/flagOptions';
import { ScrollMap } from '../../model/sheet/scrollMap';
import { useSheetsStore } from '../../stores/sheetsStore';
import { useSheetStore } from '../../stores/sheetStore';
import { carriedOver, type RowGeometry, rowKey, type SheetGeometry } from './layout/sheetGeometry';

/** Rest after the last scroll before positions are stored, in milliseconds. */
const STORE_DELAY = 300;
/** Positions are fractions of a pixel on dense screens. */
const SAME_POSITION = 1;

interface ScrolledRow {
  readonly element: HTMLElement;
  readonly farthest: number;
  /** The width that the page knows of; undefined until the row is placed. */
  width: number | undefined;
  /** Where the page put it or a user scrolled it last. */
  place: number;
}

/**
 * Scroll positions of the sheet that is shown. The elements know them best; here is what outlives them, and what is
 * stored once the scrolling has come to rest.
 */
export class ScrollSync {
  private readonly rows = new Map<string, ScrolledRow>();
  private view: HTMLElement | null = null;
  private viewHeight = 0;
  /** What vertical positions of the sheet are within. */
  private geometry: SheetGeometry | undefined;
  private verticalStart = 0;
  private sheetId: string | null = null;
  private current = ScrollMap.empty;
  private timer: ReturnType<typeof setTimeout> | undefined;

  /** Takes over the positions of a sheet that is shown from now on, or of one that has other rows from now on. */
  restore(sheetId: string | null, scrollMap: ScrollMap): void {
    if (sheetId === this.sheetId) this.forgetWaiting();
    else this.store();
    this.sheetId = sheetId;
    this.current = scrollMap;
    this.geometry = undefined;
    for (const [key, row] of this.rows) if (row.width !== undefined) putRow(row, this.position(key, row.farthest));
    if (this.view) this.view.scrollTop = this.vertical;
  }

  /** Where somebody scrolled a row to; undefined while nobody did. */
  stored(key: string): number | undefined {
    return this.current.rows.get(key);
  }

  /**
   * Where a row is scrolled to: to its least significant end until somebody scrolls it.
   * @param farthest - the position of that end
   */
  position(key: string, farthest: number): number {
    return this.stored(key) ?? farthest;
  }

  /**
   * To be called again with each new height and with each new geometry, in which what is in view stays there.
   * @param start - where a sheet that nobody scrolled begins
   */
  attachView(element: HTMLElement, geometry: SheetGeometry, start: number): void {
    this.view = element;
    this.viewHeight = element.clientHeight;
    this.verticalStart = start;
    // A page that is hidden has no size, and is laid out as nobody will see it.
    if (this.viewHeight === 0) return;
    const { vertical } = this.current;
    if (this.geometry && this.geometry !== geometry && vertical !== undefined) {
      this.change(this.current.withVertical(carriedOver(vertical, this.geometry, geometry)));
    }
    this.geometry = geometry;
    element.scrollTop = this.vertical;
  }

  /**
   * To be called again with each new width, before `placeRows`.
   * @param farthest - the position of the row's least significant end
   */
  attachRow(key: string, element: HTMLElement, farthest: number): () => void {
    this.rows.set(key, { element, farthest, width: undefined, place: 0 });
    return () => void this.rows.delete(key);
  }

  /** Scrolls the rows that were attached before to where they belong: all at once, so that the page is laid out once. */
  placeRows(): void {
    for (const [key, row] of this.rows) {
      if (row.width !== undefined) continue;
      row.width = row.element.clientWidth;
      putRow(row, this.position(key, row.farthest));
    }
  }

  rowScrolled(key: string, position: number): void {
    const row = this.rows.get(key);
    // The news of what the page or another size of the window did comes late, when it may have yet another size.
    if (row && (row.element.clientWidth !== row.width || Math.abs(position - row.place) < SAME_POSITION)) return;
    if (row) row.place = position;
    const limit = row ? row.element.scrollWidth - row.element.clientWidth : Infinity;
    if (isWhereItShouldBe(position, this.stored(key), limit)) return;
    const { flagOptions, numberDefinitions } = useSheetStore.getState();
    if (!hasFlagOption(flagOptions, SCROLL_LOCK_HORIZONTAL)) return this.change(this.current.withRow(key, position));
    // Rows that are not on the page at the moment go along, too.
    this.change(this.current.withRows(numberDefinitions.map(rowKey), position));
    for (const [other, each] of this.rows) if (other !== key) putRow(each, position);
  }

  viewScrolled(position: number): void {
    if (this.view?.clientHeight !== this.viewHeight) return;
    const limit = this.view.scrollHeight - this.view.clientHeight;
    if (!isWhereItShouldBe(position, this.vertical, limit)) this.change(this.current.withVertical(position));
  }

  /**
   * Scrolls no further than it takes to bring a word into view. Lengths are in CSS pixels.
   * @param top - of the row in its sheet
   */
  reveal(row: RowGeometry, top: number, index: number, viewWidth: number, viewHeight: number): void {
    const view = this.view;
    if (view) view.scrollTop = withinView(view.scrollTop, top, row.height, viewHeight);
    const left = (row.count - 1 - index) * row.blockWidth;
    const before = this.position(row.key, row.count * row.blockWidth - viewWidth);
    const position = withinView(before, left, row.blockWidth, viewWidth);
    if (position === before) return;
    this.rowScrolled(row.key, position);
    const attached = this.rows.get(row.key);
    if (attached) putRow(attached, position);
  }

  /** Stores now what is still waiting. */
  store(): void {
    if (this.timer === undefined) return;
    this.forgetWaiting();
    if (this.sheetId === null) return;
    const { id, setScrollMap } = useSheetStore.getState();
    if (id === this.sheetId) return setScrollMap(this.current);
    const { sheets, updateSheet } = useSheetsStore.getState();
    if (sheets.has(this.sheetId)) updateSheet(this.sheetId, { scrollMap: this.current });
  }

  private get vertical(): number {
    return this.current.vertical ?? this.verticalStart;
  }

  private forgetWaiting(): void {
    clearTimeout(this.timer);
    this.timer = undefined;
  }

  private change(scrollMap: ScrollMap): void {
    this.current = scrollMap;
    this.forgetWaiting();
    this.timer = setTimeout(() => this.store(), STORE_DELAY);
  }
}

function putRow(row: ScrolledRow, position: number): void {
  row.element.scrollLeft = position;
  row.place = row.element.scrollLeft;
}

/**
 * Whether an element stands as near as it can to where somebody scrolled it. A larger window leaves less to scroll; that
 * is no scroll, and a smaller one brings the position back.
 * @param wanted - undefined for the end, where rows begin
 * @param limit - the farthest that the element can be scrolled now
 */
function isWhereItShouldBe(position: number, wanted = Infinity, limit: number): boolean {
  return Math.abs(position - Math.min(wanted, limit)) < SAME_POSITION;
}

/** The scroll position nearest to one at which a part is in view; its beginning where it is larger than the view. */
function withinView(scrolled: number, start: number, size: number, viewSize: number): number {
  const end = start + Math.min(size, viewSize);
  if (size > viewSize && scrolled >= start && scrolled + viewSize <= start + size) return scrolled;
  return Math.min(start, Math.max(scrolled, end - viewSize));
}
