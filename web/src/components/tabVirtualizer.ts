/** Widths of a tab in CSS pixels. */
const NARROWEST = 112;
const WIDEST = 240;

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

/** How wide each of so many tabs is, in whole CSS pixels, when they have so much room. */
export function tabWidthFor(count: number, room: number): number {
  return Math.max(NARROWEST, Math.min(WIDEST, Math.floor(room / Math.max(1, count))));
}

/**
 * Which of many tabs are on the page.
 * @param tabWidth - of each tab, in CSS pixels
 * @param scrollLeft - how far the strip is scrolled, in CSS pixels
 * @param viewWidth - how much of the strip is in view, in CSS pixels
 */
export function visibleTabs(count: number, tabWidth: number, scrollLeft: number, viewWidth: number): VisibleTabs {
  const width = Math.min(count * tabWidth, WIDEST_STRIP);
  if (count <= ALL_MOUNTED) return { first: 0, end: count, left: 0, width };
  const inView = Math.ceil(viewWidth / tabWidth);
  const scrollable = Math.max(1, width - viewWidth);
  const atLeft = (Math.min(scrollLeft, scrollable) / scrollable) * Math.max(0, count - viewWidth / tabWidth);
  const first = Math.max(0, Math.floor(atLeft) - BESIDE);
  const end = Math.min(count, Math.floor(atLeft) + inView + 1 + BESIDE);
  return { first, end, left: scrollLeft - (atLeft - first) * tabWidth, width };
}

/** Where to scroll the strip so that a tab is in view; undefined when it already is. */
export function scrollToTab(
  index: number,
  count: number,
  tabWidth: number,
  scrollLeft: number,
  viewWidth: number,
): number | undefined {
  const width = Math.min(count * tabWidth, WIDEST_STRIP);
  const scrollable = Math.max(0, width - viewWidth);
  const tabsAtLeft = Math.max(0, count - viewWidth / tabWidth);
  if (scrollable === 0 || tabsAtLeft === 0) return undefined;
  const atLeft = (scrollLeft / scrollable) * tabsAtLeft;
  if (index < atLeft) return (index / tabsAtLeft) * scrollable;
  const atLeftToShow = index + 1 - viewWidth / tabWidth;
  if (atLeftToShow > atLeft) return (atLeftToShow / tabsAtLeft) * scrollable;
  return undefined;
}
