import {
  type KeyboardEvent,
  useEffect,
  useId,
  useLayoutEffect,
  useMemo,
  useRef,
  useState,
  type WheelEvent,
} from 'react';
import { useTranslation } from 'react-i18next';
import { requestFirstWordFocus } from '../actions/firstWordFocus';
import type { BarPlace } from '../commands/barPlaces';
import { runCommand } from '../commands/command';
import { TOOLBAR_COMMANDS } from '../commands/toolbarCommands';
import { isVsCode } from '../host/hostFlags';
import { useSheetsStore } from '../stores/sheetsStore';
import { hoverTitle } from '../ui/hoverTitle';
import { SheetTab, type TabActions } from './SheetTab';
import styles from './SheetTabs.module.css';
import { createTitleSelector } from './sheetTitles';
import { scrollToTab, tabWidthFor, visibleTabs } from './tabVirtualizer';
import { type TabDrag, useTabDrag } from './useTabDrag';

/** The button that adds a sheet stands beside the tabs. */
const ADD_WIDTH = 32;

/** Lengths in CSS pixels: of the strip, and of the bar without the button. */
interface StripView {
  scrollLeft: number;
  width: number;
  room: number;
}

const NO_TABS = { first: 0, end: 0, left: 0, width: 0 };

/** The strip with a tab for every sheet and a button that adds one. */
export function SheetTabs() {
  const { t } = useTranslation();
  const titles = useSheetsStore(useMemo(createTitleSelector, []));
  const activeKey = useSheetsStore((store) => store.activeSheetKey);
  const bar = useRef<HTMLDivElement>(null);
  const strip = useRef<HTMLDivElement>(null);
  const tabs = useRef<HTMLDivElement>(null);
  const addButton = useRef<HTMLButtonElement>(null);
  const [view, setView] = useState<StripView>();
  const idBase = useId();
  const activeIndex = titles.findIndex(({ id }) => id === activeKey);
  const tabWidth = tabWidthFor(titles.length, view?.room ?? 0);
  // None before their width is known: each would be rendered twice.
  const shown = view ? visibleTabs(titles.length, tabWidth, view.scrollLeft, view.width) : NO_TABS;
  const { first, end, left, width } = shown;
  const tabId = (index: number) => `${idBase}-${index}`;
  const isClosable = titles.length > 1 || !isVsCode;

  const measure = () => {
    const { scrollLeft, clientWidth } = strip.current!;
    const now = { scrollLeft, width: clientWidth, room: bar.current!.clientWidth - ADD_WIDTH };
    setView((before) => (before && isSameView(before, now) ? before : now));
  };
  // A passive effect ends late enough for the observer to measure a strip that has left the page already.
  useLayoutEffect(() => {
    measure();
    const observer = new ResizeObserver(measure);
    observer.observe(strip.current!);
    observer.observe(bar.current!);
    return () => observer.disconnect();
  }, []);
  useEffect(() => {
    const element = strip.current!;
    const target = scrollToTab(activeIndex, titles.length, tabWidth, element.scrollLeft, element.clientWidth);
    if (activeIndex >= 0 && target !== undefined) element.scrollLeft = target;
  }, [activeIndex, titles.length, tabWidth, width]);

  // A tab that is closed or scrolled out of the page takes the focus with it; the tab that is shown next gets it.
  const takesFocus = useRef(false);
  // A passive effect of an earlier render may still be to come when a key sets the mark, and would focus the old tab.
  useLayoutEffect(() => {
    const tab = takesFocus.current ? document.getElementById(tabId(activeIndex)) : null;
    if (!tab) return;
    takesFocus.current = false;
    tab.focus({ preventScroll: true });
  });

  const show = (place: BarPlace) => {
    const index = { previous: activeIndex - 1, next: activeIndex + 1, first: 0, last: titles.length - 1 }[place];
    const title = titles[index];
    if (place === 'next' && !title) return addButton.current!.focus();
    if (!title || index === activeIndex) return;
    takesFocus.current = true;
    useSheetsStore.getState().setActiveSheet(title.id);
  };
  const move = ({ sheetId, place }: TabDrag) => {
    takesFocus.current = true;
    const { setActiveSheet, moveSheet } = useSheetsStore.getState();
    setActiveSheet(sheetId);
    moveSheet(sheetId, place);
  };
  const { drag, start } = useTabDrag({ tabs, first, count: titles.length, tabWidth }, move);
  const latest = useRef({ titles, show, move });
  useLayoutEffect(() => {
    latest.current = { titles, show, move };
  });
  // Another active sheet renders two tabs, not all of them.
  const actions = useMemo<TabActions>(
    () => ({
      close(id) {
        takesFocus.current = true;
        useSheetsStore.getState().removeSheet(id);
      },
      show: (place) => latest.current.show(place),
      move(sheetId, by) {
        const { titles, move } = latest.current;
        move({ sheetId, place: titles.findIndex(({ id }) => id === sheetId) + by });
      },
      beginDrag: start,
    }),
    [start],
  );
  const draggedFrom = titles.findIndex(({ id }) => id === drag?.sheetId);
  const dropEdge = (index: number) => {
    if (!drag || drag.place !== index || draggedFrom === index) return undefined;
    return draggedFrom < index ? 'end' : 'start';
  };
  const scrollSideways = (event: WheelEvent) => {
    if (event.deltaX === 0) strip.current!.scrollLeft += event.deltaY;
  };
  // The arrow keys go on from the last tab to the button that adds one.
  const onAddKey = (event: KeyboardEvent) =>
    void runCommand(TOOLBAR_COMMANDS, event, {
      move(place) {
        if (place === 'next' || place === 'last') return;
        document.getElementById(tabId(activeIndex))?.focus();
        if (place === 'first') show('first');
      },
    });
  const add = () => {
    useSheetsStore.getState().addSheet();
    requestFirstWordFocus();
  };
  const owned = Array.from({ length: end - first }, (_, offset) => tabId(first + offset)).join(' ');

  return (
    <div ref={bar} data-region className={styles.tabs}>
      {/* Close buttons stand beside their tabs, and a list of tabs may hold nothing but tabs: it owns them by name. */}
      <div role="tablist" aria-label={t('sheets.tabs')} aria-owns={owned || undefined} />
      <div ref={strip} onScroll={measure} onWheel={scrollSideways} className={styles.strip}>
        <div style={{ position: 'relative', width, height: '100%' }}>
          <div ref={tabs} style={{ position: 'absolute', left, display: 'flex' }}>
            {titles.slice(first, end).map(({ id, name }, offset) => (
              <SheetTab
                key={id}
                tabId={tabId(first + offset)}
                sheetId={id}
                name={name}
                isActive={id === activeKey}
                isClosable={isClosable}
                actions={actions}
                isDragged={id === drag?.sheetId}
                dropEdge={dropEdge(first + offset)}
                width={tabWidth}
                position={first + offset + 1}
                count={titles.length}
              />
            ))}
          </div>
        </div>
      </div>
      <button
        ref={addButton}
        type="button"
        tabIndex={-1}
        aria-label={t('sheets.add')}
        {...hoverTitle(t('sheets.add'))}
        onClick={add}
        onKeyDown={onAddKey}
        className={styles.add}
      >
        +
      </button>
    </div>
  );
}

function isSameView(one: StripView, other: StripView): boolean {
  return one.scrollLeft === other.scrollLeft && one.width === other.width && one.room === other.room;
}
