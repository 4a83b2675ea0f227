import { describe, expect, test } from 'vitest';
import { scrollToTab, tabWidthFor, visibleTabs } from './tabVirtualizer';

const TAB_WIDTH = 152;

const VIEW = 800;
const MANY = 1_000_000;

test.each([
  [1, 700, 240],
  [4, 700, 175],
  [50, 700, 112],
  [0, 700, 240],
])('%i tabs with room for %i pixels are %i wide each', (count, room, width) => {
  expect(tabWidthFor(count, room)).toBe(width);
});

describe('visibleTabs', () => {
  test('all of a usual number of tabs are on the page', () => {
    expect(visibleTabs(200, TAB_WIDTH, 5000, VIEW)).toEqual({ first: 0, end: 200, left: 0, width: 200 * TAB_WIDTH });
    expect(visibleTabs(0, TAB_WIDTH, 0, VIEW)).toEqual({ first: 0, end: 0, left: 0, width: 0 });
  });

  test.each([1000, MANY])('of %i tabs only some are, among them all that are in view', (count) => {
    const { width } = visibleTabs(count, TAB_WIDTH, 0, VIEW);
    for (const share of [0, 0.1, 0.5, 0.999, 1]) {
      const scrollLeft = share * (width - VIEW);
      const { first, end, left } = visibleTabs(count, TAB_WIDTH, scrollLeft, VIEW);
      expect(end - first).toBeLessThan(60);
      expect(left).toBeLessThanOrEqual(scrollLeft + 0.001);
      expect(left + (end - first) * TAB_WIDTH).toBeGreaterThanOrEqual(scrollLeft + VIEW - 0.001);
    }
  });

  test.each([1000, MANY])('both ends of %i tabs can be reached', (count) => {
    const { width } = visibleTabs(count, TAB_WIDTH, 0, VIEW);
    expect(visibleTabs(count, TAB_WIDTH, 0, VIEW)).toMatchObject({ first: 0, left: 0 });
    const atEnd = visibleTabs(count, TAB_WIDTH, width - VIEW, VIEW);
    expect(atEnd.end).toBe(count);
    expect(atEnd.left + (atEnd.end - atEnd.first) * TAB_WIDTH).toBeCloseTo(width, 3);
  });

  test('no strip is wider than a browser lays out', () => {
    expect(visibleTabs(MANY, TAB_WIDTH, 0, VIEW).width).toBeLessThan(10_000_000);
  });
});

describe('scrollToTab', () => {
  test('does nothing for a tab in view', () => {
    expect(scrollToTab(0, 3, TAB_WIDTH, 0, VIEW)).toBeUndefined();
    expect(scrollToTab(2, 100, TAB_WIDTH, 0, VIEW)).toBeUndefined();
  });

  test.each([
    [100, 99],
    [100, 50],
    [MANY, 0],
    [MANY, 777_777],
    [MANY, MANY - 1],
  ])('of %i tabs brings tab %i into view', (count, at) => {
    const { width } = visibleTabs(count, TAB_WIDTH, 0, VIEW);
    const start = at < count / 2 ? width - VIEW : 0;
    const scrollLeft = scrollToTab(at, count, TAB_WIDTH, start, VIEW)!;
    const { first, end, left } = visibleTabs(count, TAB_WIDTH, scrollLeft, VIEW);
    expect(first).toBeLessThanOrEqual(at);
    expect(end).toBeGreaterThan(at);
    const tabLeft = left + (at - first) * TAB_WIDTH;
    expect(tabLeft).toBeGreaterThanOrEqual(scrollLeft - 0.01);
    expect(tabLeft + TAB_WIDTH).toBeLessThanOrEqual(scrollLeft + VIEW + 0.01);
  });
});
