import cc from 'classcat';
import { memo, startTransition, useEffect, useLayoutEffect, useMemo, useRef, useState } from 'react';
import { i18next } from '../../i18n';
import type { ColorNotation } from '../../model/color/formatColor';
import { useSheetStore } from '../../stores/sheetStore';
import { partsInView, type RowGeometry } from './layout/sheetGeometry';
import styles from './RowView.module.css';
import { RowScroller } from './scrollers';
import type { ScrollSync } from './scrollSync';
import type { MoveFocus } from './word/BlockFrame';
import { ColorBlock } from './word/ColorBlock';
import { rowTexts } from './word/rowTexts';
import { WordBlock } from './word/WordBlock';
import { focusWord } from './wordNavigation';

/** A word at an end of a row, which is there though it may be out of view. */
export type RowEntry = 'leftmost' | 'rightmost';

interface RowViewProps {
  row: RowGeometry;
  /** In or near the view; a row far away is an empty group of the same height. */
  isNear: boolean;
  isInView: boolean;
  entry: RowEntry | undefined;
  viewWidth: number;
  pixelRatio: number;
  scrollSync: ScrollSync;
  onMove: MoveFocus;
}

/** Blocks this far outside the view, in pixels, are there already when they are scrolled to. */
const MARGIN = 320;

/** All words of one width, the most significant at the left. */
export const RowView = memo(function RowView(props: RowViewProps) {
  const { row, isNear, isInView } = props;
  const [notation, setNotation] = useState<ColorNotation>('HEX');
  return (
    <div
      role="group"
      aria-label={row.label}
      className={cc([styles.row, !isInView && styles.unseen])}
      style={{ height: row.height }}
    >
      <span className={styles.label} aria-hidden="true">
        {row.shortLabel}
      </span>
      {isNear ? <RowBlocks {...props} notation={notation} onNotation={setNotation} /> : <FarRow row={row} />}
    </div>
  );
});

/** Stands for the words of a row far away, and lets in whoever comes without scrolling, such as a screen reader. */
function FarRow({ row }: { row: RowGeometry }) {
  const enter = () => focusWord(row, row.count - 1, 'value');
  const text = i18next.t('words.wordsInRow', { row: row.label, count: row.count });
  // WebKit takes no name from a text that it lays out only when it comes into view.
  return (
    <button type="button" tabIndex={-1} className={styles.far} aria-label={text} onFocus={enter} onClick={enter}>
      {text}
    </button>
  );
}

interface RowBlocksProps extends RowViewProps {
  notation: ColorNotation;
  onNotation: (notation: ColorNotation) => void;
}

function RowBlocks(props: RowBlocksProps) {
  const { row, isInView, entry, viewWidth, pixelRatio, scrollSync, onMove, notation, onNotation } = props;
  const { key, type, bits, count, blockWidth } = row;
  const texts = useMemo(() => rowTexts(row), [row]);
  const scroller = useRef<HTMLDivElement>(null);
  const farthest = Math.max(0, count * blockWidth - viewWidth);
  // Undefined at the least significant end, which stays there when the row gets wider.
  const [scrolled, setScrolled] = useState(() => scrollSync.stored(key));
  const focusedIndex = useSheetStore(({ focusedBlock }) =>
    focusedBlock[0] === type && focusedBlock[1] === bits && focusedBlock[2] < count ? focusedBlock[2] : -1,
  );
  useLayoutEffect(() => scrollSync.attachRow(key, scroller.current!, farthest), [scrollSync, key, farthest, viewWidth]);

  // Words beside the view come after those in it, so that no frame has to bring both.
  const [margin, setMargin] = useState(0);
  useEffect(() => startTransition(() => setMargin(MARGIN)), []);
  const placesAt = (position = farthest) =>
    partsInView(count, blockWidth, Math.min(position, farthest), viewWidth, margin);
  const onScroll = () => {
    const position = scroller.current!.scrollLeft;
    scrollSync.rowScrolled(key, position);
    const now = position < farthest - 1 ? position : undefined;
    setScrolled((before) => (isEqual(placesAt(before), placesAt(now)) ? before : now));
  };

  const [first, last] = placesAt(scrolled);
  return (
    <div
      ref={scroller}
      className={cc([styles.scroller, !row.scrolls && styles.still])}
      data-scroller="row"
      onScroll={onScroll}
    >
      <div className={styles.content} style={{ width: count * blockWidth }}>
        <RowScroller value={scroller}>
          {indicesToMount(count, first, last, focusedIndex, entry).map((index) => {
            const shared = { row, index, isInView, onMove };
            return type === 'color32' ? (
              <ColorBlock key={index} {...shared} notation={notation} onNotation={onNotation} />
            ) : (
              <WordBlock key={index} {...shared} texts={texts} pixelRatio={pixelRatio} />
            );
          })}
        </RowScroller>
      </div>
    </div>
  );
}

function isEqual(a: readonly [number, number], b: readonly [number, number]): boolean {
  return a[0] === b[0] && a[1] === b[1];
}

/**
 * Words from left to right: those in or near the view, and those that the keyboard's focus is in or comes to next.
 * @param first - place of the leftmost word near the view
 * @param focused - index of a word, or -1
 */
function indicesToMount(count: number, first: number, last: number, focused: number, entry?: RowEntry): number[] {
  const indices = new Set<number>();
  for (let place = first; place <= last; place++) indices.add(count - 1 - place);
  if (focused >= 0) for (const index of [focused + 1, focused, focused - 1]) indices.add(index);
  if (entry) indices.add(entry === 'leftmost' ? count - 1 : 0);
  return [...indices].filter((index) => index >= 0 && index < count).sort((a, b) => b - a);
}
