/** Width of a tab in CSS pixels. */
export const TAB_WIDTH = 152;

/** Up to this number all tabs are on the page; beyond it only those in view and some beside them. */
const ALL_MOUNTED = 200;
const BESIDE = 20;

/** Browsers lay out nothing wider than some ten million pixels. */
const WIDEST_STRIP = 8_000_000;

export interface VisibleTabs {
  /** First tab on the page. */
  first: number;
  /** The tab after the last one on the page. */
  end: number;
  /** Left edge of the first tab on the page, in CSS pixels of the strip. */
  left: number;
  /** Width of the whole strip in CSS pixels. */
  width: number;
}

/**
 * Which of many tabs are on the page.
 * @param scrollLeft - how far the strip is scrolled, in CSS pixels
 * @param viewWidth - how much of the strip is in view, in CSS pixels
 */
export function visibleTabs(count: number, scrollLeft: number, viewWidth: number): VisibleTabs {
  const width = Math.min(count * TAB_WIDTH, WIDEST_STRIP);
  if (count <= ALL_MOUNTED) return { first: 0, end: count, left: 0, width };
  const inView = Math.ceil(viewWidth / TAB_WIDTH);
  const scrollable = Math.max(1, width - viewWidth);
  const atLeft = (Math.min(scrollLeft, scrollable) / scrollable) * Math.max(0, count - viewWidth / TAB_WIDTH);
  const first = Math.max(0, Math.floor(atLeft) - BESIDE);
  const end = Math.min(count, Math.floor(atLeft) + inView + 1 + BESIDE);
  return { first, end, left: scrollLeft - (atLeft - first) * TAB_WIDTH, width };
}

/** Where to scroll the strip so that a tab is in view; undefined when it already is. */
export function scrollToTab(index: number, count: number, scrollLeft: number, viewWidth: number): number | undefined {
  const width = Math.min(count * TAB_WIDTH, WIDEST_STRIP);
  const scrollable = Math.max(0, width - viewWidth);
  const tabsAtLeft = Math.max(0, count - viewWidth / TAB_WIDTH);
  if (scrollable === 0 || tabsAtLeft === 0) return undefined;
  const atLeft = (scrollLeft / scrollable) * tabsAtLeft;
  if (index < atLeft) return (index / tabsAtLeft) * scrollable;
  const atLeftToShow = index + 1 - viewWidth / TAB_WIDTH;
  if (atLeftToShow > atLeft) return (atLeftToShow / tabsAtLeft) * scrollable;
  return undefined;
}
