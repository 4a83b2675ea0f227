import { memo, type PointerEvent, useCallback, useLayoutEffect, useMemo, useRef, useState } from 'react';
import { subscribe, useSnapshot } from 'valtio';
import { firstWordFocus } from '../../actions/firstWordFocus';
import { shownChange } from '../../actions/shownChange';
import { useSheetStore } from '../../stores/sheetStore';
import { useNameLanes } from './bitField/nameLabels';
import { equalPartsKeeper } from './layout/keepEqual';
import {
  carriedOver,
  LABELS_WIDTH,
  ROW_GAP,
  ROWS_SIDE,
  type SheetGeometry,
  sheetGeometry,
} from './layout/sheetGeometry';
import { digitWidth, usePixelRatio, useViewSize } from './layout/useViewport';
import { Minimap } from './Minimap';
import { type RowEntry, RowView } from './RowView';
import { SheetScroller } from './scrollers';
import { ScrollSync } from './scrollSync';
import styles from './SheetView.module.css';
import type { MoveFocus } from './word/BlockFrame';
import { focusWord, neighbour, selectMainField } from './wordNavigation';

/**
 * Rows this far above or below the view, in pixels, are mounted too, so that Tab finds them. It is little on purpose:
 * every word that is mounted is drawn again with each edit of its bits.
 */
const MARGIN = 32;

interface SheetViewProps {
  /** Called whenever rows begin or cease to be wider than the view. */
  onOverflow: (overflows: boolean) => void;
}

/** All rows of the sheet that is shown. */
export const SheetView = memo(function SheetView({ onOverflow }: SheetViewProps) {
  const view = useRef<HTMLDivElement>(null);
  const size = useViewSize(view);
  const pixelRatio = usePixelRatio();
  const resolution = useSheetStore((sheet) => sheet.int.resolution);
  const definitions = useSheetStore((sheet) => sheet.numberDefinitions);
  const converters = useSheetStore((sheet) => sheet.converters);
  const sheetId = useSheetStore((sheet) => sheet.id);
  const nameLanes = useNameLanes(sheetId);
  const [scrollSync] = useState(() => new ScrollSync());

  const viewWidth = (size?.width ?? 0) - LABELS_WIDTH - ROWS_SIDE;
  const [keepEqualParts] = useState(equalPartsKeeper<SheetGeometry>);
  const geometry = useMemo(() => {
    const shape = { resolution, definitions, converters, nameLanes, viewWidth, charWidth: digitWidth() };
    return keepEqualParts(sheetGeometry(shape));
  }, [keepEqualParts, resolution, definitions, converters, nameLanes, viewWidth]);
  const [scrolled, setScrolled] = useState({ position: 0, within: geometry });
  const viewHeight = size?.height ?? 0;
  const isMeasured = size !== undefined;

  const noteScrolled = useCallback(
    (position: number) =>
      setScrolled((before) =>
        sameRows(geometry, placeIn(geometry, before), position, viewHeight) ? before : { position, within: geometry },
      ),
    [geometry, viewHeight],
  );
  useLayoutEffect(() => onOverflow(geometry.overflows), [geometry.overflows, onOverflow]);
  const start = verticalStart(geometry, viewHeight);
  useLayoutEffect(() => {
    scrollSync.restore(sheetId, useSheetStore.getState().scrollMap);
  }, [scrollSync, sheetId, resolution, isMeasured]);
  useLayoutEffect(() => scrollSync.placeRows());
  useLayoutEffect(() => {
    scrollSync.attachView(view.current!, geometry, start);
    noteScrolled(view.current!.scrollTop);
  }, [scrollSync, sheetId, resolution, start, viewHeight, geometry, noteScrolled]);
  useLayoutEffect(() => () => scrollSync.store(), [scrollSync]);

  const onScroll = () => {
    const position = view.current!.scrollTop;
    scrollSync.viewScrolled(position);
    noteScrolled(position);
  };

  const { rows, tops } = geometry;
  const shownRows = useRef(rows);
  useLayoutEffect(() => void (shownRows.current = rows), [rows]);
  const onMove = useCallback<MoveFocus>((rowKey, index, direction, focusKey) => {
    const target = neighbour(shownRows.current, rowKey, index, direction);
    const row = shownRows.current.find(({ key }) => key === target?.rowKey);
    if (target && row) focusWord(row, target.index, focusKey);
  }, []);

  useLayoutEffect(
    () =>
      subscribe(shownChange, () => {
        const { word } = shownChange;
        const place = rows.findIndex(({ type, bits }) => type === word?.type && bits === word.bits);
        if (word && place >= 0) scrollSync.reveal(rows[place]!, tops[place]!, word.index, viewWidth, viewHeight);
      }),
    [scrollSync, rows, tops, viewWidth, viewHeight],
  );

  const focusedRow = useSheetStore(({ focusedBlock: [type, bits] }) => `${type}:${bits}`);
  const { isRequested } = useSnapshot(firstWordFocus);
  useLayoutEffect(() => {
    const [widest] = rows;
    if (isRequested && isMeasured && widest && selectMainField(widest, 0)) firstWordFocus.isRequested = false;
  }, [isRequested, isMeasured, rows, focusedRow]);

  // Tab finds the words that come after the focused one, though nobody has scrolled there.
  const focusedPlace = rows.findIndex(({ key }) => key === focusedRow);
  const isBesideFocus = (place: number) => focusedPlace >= 0 && Math.abs(place - focusedPlace) <= 1;

  const top = Math.min(placeIn(geometry, scrolled), Math.max(0, geometry.height - viewHeight));
  return (
    <div data-region className={styles.body}>
      <div ref={view} className={styles.view} data-scroller="sheet" onScroll={onScroll} onPointerDown={unfocusOutside}>
        <SheetScroller value={view}>
          {size &&
            rows.map((row, place) => (
              <RowView
                key={row.key}
                row={row}
                isNear={isNear(geometry, place, top, viewHeight) || isBesideFocus(place)}
                isInView={isInView(geometry, place, top, viewHeight)}
                entry={isBesideFocus(place) ? entryFrom(place - focusedPlace) : undefined}
                viewWidth={viewWidth}
                pixelRatio={pixelRatio}
                scrollSync={scrollSync}
                onMove={onMove}
              />
            ))}
        </SheetScroller>
      </div>
      <Minimap geometry={geometry} view={view} viewHeight={viewHeight} />
    </div>
  );
});

function placeIn(geometry: SheetGeometry, { position, within }: { position: number; within: SheetGeometry }): number {
  return within === geometry ? position : carriedOver(position, within, geometry);
}

/** A sheet begins with the least significant bits of its widest word, whose lines of bits may need more than the view has. */
function verticalStart({ rows: [widest] }: SheetGeometry, viewHeight: number): number {
  return widest?.bitField.vertical ? Math.max(0, ROW_GAP + widest.height - viewHeight) : 0;
}

/** The word of a row below or above the focused one that the keyboard comes to first. */
function entryFrom(rowsDown: number): RowEntry | undefined {
  return rowsDown === 0 ? undefined : rowsDown > 0 ? 'leftmost' : 'rightmost';
}

/** A press beside all words leaves none focused. */
function unfocusOutside({ target }: PointerEvent): void {
  if ((target as Element).closest('[data-word]')) return;
  const { focusedBlock, unfocus } = useSheetStore.getState();
  if (focusedBlock[0] !== null) unfocus(...focusedBlock);
}

function isInView({ rows, tops }: SheetGeometry, place: number, scrolled: number, viewHeight: number): boolean {
  const top = tops[place]! + ROW_GAP;
  return top + rows[place]!.height > scrolled && top < scrolled + viewHeight;
}

function isNear({ rows, tops }: SheetGeometry, place: number, scrolled: number, viewHeight: number): boolean {
  const top = tops[place]!;
  return top + rows[place]!.height >= scrolled - MARGIN && top <= scrolled + viewHeight + MARGIN;
}

function sameRows(geometry: SheetGeometry, before: number, now: number, viewHeight: number): boolean {
  return [isInView, isNear].every((is) =>
    geometry.rows.every((_, place) => is(geometry, place, before, viewHeight) === is(geometry, place, now, viewHeight)),
  );
}
