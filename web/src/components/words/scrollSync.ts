import { hasFlagOption, SCROLL_LOCK_HORIZONTAL } from '../../model/sheet/flagOptions';
import { ScrollMap } from '../../model/sheet/scrollMap';
import { useSheetsStore } from '../../stores/sheetsStore';
import { useSheetStore } from '../../stores/sheetStore';
import type { RowGeometry } from './layout/sheetGeometry';

/** Rest after the last scroll before positions are stored, in milliseconds. */
const STORE_DELAY = 300;
/** Positions are fractions of a pixel on dense screens. */
const SAME_POSITION = 1;

/**
 * Scroll positions of the sheet that is shown. The elements know them best; here is what outlives them, and what is
 * stored once the scrolling has come to rest.
 */
export class ScrollSync {
  private readonly rows = new Map<string, HTMLElement>();
  private view: HTMLElement | null = null;
  private sheetId: string | null = null;
  private current = ScrollMap.empty;
  private timer: ReturnType<typeof setTimeout> | undefined;

  /** Takes over the positions of a sheet that is shown from now on. */
  restore(sheetId: string | null, scrollMap: ScrollMap): void {
    this.store();
    this.sheetId = sheetId;
    this.current = scrollMap;
    for (const [key, element] of this.rows) element.scrollLeft = this.position(key);
    if (this.view) this.view.scrollTop = scrollMap.vertical;
  }

  position(key: string): number {
    return this.current.rows.get(key) ?? 0;
  }

  attachView(element: HTMLElement | null): void {
    this.view = element;
  }

  attachRow(key: string, element: HTMLElement): () => void {
    this.rows.set(key, element);
    element.scrollLeft = this.position(key);
    return () => void this.rows.delete(key);
  }

  rowScrolled(key: string, position: number): void {
    if (Math.abs(position - this.position(key)) < SAME_POSITION) return;
    if (!hasFlagOption(useSheetStore.getState().flagOptions, SCROLL_LOCK_HORIZONTAL)) {
      return this.change(this.current.withRow(key, position));
    }
    this.change(this.current.withRows(this.rows.keys(), position));
    for (const [other, element] of this.rows) if (other !== key) element.scrollLeft = position;
  }

  viewScrolled(position: number): void {
    if (Math.abs(position - this.current.vertical) >= SAME_POSITION) this.change(this.current.withVertical(position));
  }

  /** Scrolls no further than it takes to bring a word into view. Lengths are in CSS pixels. */
  reveal(row: RowGeometry, index: number, viewWidth: number, viewHeight: number): void {
    const view = this.view;
    if (view) view.scrollTop = withinView(view.scrollTop, row.top, row.height, viewHeight);
    const left = (row.count - 1 - index) * row.blockWidth;
    const before = this.position(row.key);
    const position = withinView(before, left, row.blockWidth, viewWidth);
    if (position === before) return;
    this.rowScrolled(row.key, position);
    const element = this.rows.get(row.key);
    if (element) element.scrollLeft = position;
  }

  /** Stores now what is still waiting. */
  store(): void {
    if (this.timer === undefined) return;
    clearTimeout(this.timer);
    this.timer = undefined;
    if (this.sheetId === null) return;
    const { id, setScrollMap } = useSheetStore.getState();
    if (id === this.sheetId) return setScrollMap(this.current);
    const { sheets, updateSheet } = useSheetsStore.getState();
    if (sheets.has(this.sheetId)) updateSheet(this.sheetId, { scrollMap: this.current });
  }

  private change(scrollMap: ScrollMap): void {
    this.current = scrollMap;
    clearTimeout(this.timer);
    this.timer = setTimeout(() => this.store(), STORE_DELAY);
  }
}

/** The scroll position nearest to one at which a part is in view; its beginning where it is larger than the view. */
function withinView(scrolled: number, start: number, size: number, viewSize: number): number {
  const end = start + Math.min(size, viewSize);
  if (size > viewSize && scrolled >= start && scrolled + viewSize <= start + size) return scrolled;
  return Math.min(start, Math.max(scrolled, end - viewSize));
}
