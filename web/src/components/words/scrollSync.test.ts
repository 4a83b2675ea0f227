import { afterEach, beforeEach, expect, test, vi } from 'vitest';
import { definitionsFor } from '../../model/sheet/numberDefinitions';
import { ScrollMap } from '../../model/sheet/scrollMap';
import { useSheetStore } from '../../stores/sheetStore';
import { type SheetGeometry, sheetGeometry } from './layout/sheetGeometry';
import { ScrollSync } from './scrollSync';

const ROW = 'integer:64';
const CONTENT = 1120;
const definitions = definitionsFor(1024);
const geometryAt = (viewWidth: number) =>
  sheetGeometry({ resolution: 1024, definitions, converters: undefined, viewWidth, charWidth: 7.25 });
const GEOMETRY = geometryAt(1200);

/** An element that shows some pixels of a larger content, and keeps its position within it. */
class Scroller {
  readonly scrollWidth = CONTENT;
  readonly scrollHeight = CONTENT;
  private position = 0;

  constructor(private shown: number) {}

  resize(shown: number) {
    this.shown = shown;
    this.scrollLeft = this.position;
  }

  get clientWidth() {
    return this.shown;
  }
  get clientHeight() {
    return this.shown;
  }
  get scrollLeft() {
    return this.position;
  }
  set scrollLeft(wanted: number) {
    this.position = Math.max(0, Math.min(wanted, CONTENT - this.shown));
  }
  get scrollTop() {
    return this.position;
  }
  set scrollTop(wanted: number) {
    this.scrollLeft = wanted;
  }
}

const scroller = (shown: number) => new Scroller(shown) as Scroller & HTMLElement;

/** What a window that was very large for a moment leaves behind, before the page has heard of any other size. */
function growAndShrink(element: Scroller, sizeAfter: number) {
  element.resize(1000);
  element.resize(sizeAfter);
}

const stored = () => useSheetStore.getState().scrollMap;

beforeEach(() => {
  vi.useFakeTimers();
  useSheetStore.setState({ id: 'shown', scrollMap: ScrollMap.empty });
});
afterEach(() => vi.useRealTimers());

test('two sizes of the window at once are no scroll of a row', () => {
  const sync = new ScrollSync();
  sync.restore('shown', stored().withRow(ROW, 300));
  const element = scroller(600);
  sync.attachRow(ROW, element, CONTENT - 600);
  sync.placeRows();
  growAndShrink(element, 500);
  sync.rowScrolled(ROW, element.scrollLeft);
  expect(element.scrollLeft).toBe(120);
  sync.attachRow(ROW, element, CONTENT - 500);
  sync.placeRows();
  expect(element.scrollLeft).toBe(300);
});

test('two sizes of the window at once are no scroll of the sheet', () => {
  const sync = new ScrollSync();
  sync.restore('shown', stored().withVertical(300));
  const element = scroller(600);
  sync.attachView(element, GEOMETRY, 0);
  growAndShrink(element, 500);
  sync.viewScrolled(element.scrollTop);
  sync.attachView(element, GEOMETRY, 0);
  expect(element.scrollTop).toBe(300);
});

test('what is in view stays there when the rows above it get other heights, and so it is stored', () => {
  const sync = new ScrollSync();
  const bytes = (geometry: SheetGeometry) => geometry.tops[geometry.rows.findIndex(({ key }) => key === 'integer:8')]!;
  const narrow = geometryAt(700);
  expect(bytes(narrow)).toBeGreaterThan(bytes(GEOMETRY) + 100);
  sync.restore('shown', stored().withVertical(bytes(GEOMETRY) + 20));
  const element = { clientHeight: 500, scrollTop: 0 } as HTMLElement;
  sync.attachView(element, GEOMETRY, 0);
  sync.attachView(element, narrow, 0);
  expect(element.scrollTop).toBeCloseTo(bytes(narrow) + 20);
  vi.runAllTimers();
  expect(stored().vertical).toBeCloseTo(bytes(narrow) + 20);
  sync.attachView(element, GEOMETRY, 0);
  expect(element.scrollTop).toBeCloseTo(bytes(GEOMETRY) + 20);
});

test('a page that is hidden for a while keeps its position', () => {
  const sync = new ScrollSync();
  sync.restore('shown', stored().withVertical(1500));
  const element = { clientHeight: 500, scrollTop: 0 } as { -readonly [K in keyof HTMLElement]: HTMLElement[K] };
  sync.attachView(element, GEOMETRY, 0);
  element.clientHeight = 0;
  sync.attachView(element, geometryAt(-26), 0);
  vi.runAllTimers();
  expect(stored().vertical).toBeUndefined();
  element.clientHeight = 500;
  sync.attachView(element, GEOMETRY, 0);
  expect(element.scrollTop).toBe(1500);
});

test('a sheet that nobody scrolled begins where it begins at each width', () => {
  const sync = new ScrollSync();
  sync.restore('shown', ScrollMap.empty);
  const element = scroller(500);
  sync.attachView(element, GEOMETRY, 80);
  sync.attachView(element, geometryAt(700), 120);
  expect(element.scrollTop).toBe(120);
  vi.runAllTimers();
  expect(stored().vertical).toBeUndefined();
});

test('what a user scrolls is stored once it has come to rest', () => {
  const sync = new ScrollSync();
  sync.restore('shown', ScrollMap.empty);
  const [row, view] = [scroller(600), scroller(500)];
  sync.attachRow(ROW, row, CONTENT - 600);
  sync.placeRows();
  sync.attachView(view, GEOMETRY, 0);
  sync.rowScrolled(ROW, (row.scrollLeft = 200));
  sync.viewScrolled((view.scrollTop = 40));
  expect(stored()).toBe(ScrollMap.empty);
  vi.runAllTimers();
  expect([stored().rows.get(ROW), stored().vertical]).toEqual([200, 40]);
});
