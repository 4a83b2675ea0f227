import { type MouseEvent, type PointerEvent, type RefObject, useLayoutEffect, useMemo, useRef } from 'react';
import { i18next } from '../../i18n';
import { useSheetStore } from '../../stores/sheetStore';
import { moveRovingFocus } from '../../ui/rovingFocus';
import { makeTabStop } from '../../ui/tabStop';
import { MinimapLayout } from './layout/minimapLayout';
import type { SheetGeometry } from './layout/sheetGeometry';
import styles from './Minimap.module.css';

/** Above and below the map. */
const MARGIN = 6;
/** Between its rows. */
const GAP = 1;

interface MinimapProps {
  geometry: SheetGeometry;
  view: RefObject<HTMLElement | null>;
  /** 0 as long as nobody knows it. */
  viewHeight: number;
}

/**
 * The whole sheet at the height of the view, with a frame around what is in view. A press or drag scrolls there; each
 * row is also a button.
 */
export function Minimap({ geometry, view, viewHeight }: MinimapProps) {
  const frame = useRef<HTMLDivElement>(null);
  const isDragging = useRef(false);
  const focusedRow = useSheetStore(({ focusedBlock: [type, bits] }) => `${type}:${bits}`);
  const { rows, tops, height } = geometry;
  const map = useMemo(() => new MinimapLayout(geometry, viewHeight - 2 * MARGIN), [geometry, viewHeight]);
  const fits = viewHeight === 0 || height <= viewHeight;

  useLayoutEffect(() => {
    const scroller = view.current!;
    // Moved by hand: a render for each step of a scroll would cost more than the scroll.
    const follow = () => {
      if (!frame.current) return;
      const { scrollTop, clientHeight } = scroller;
      const top = map.toMap(scrollTop);
      frame.current.style.top = `${top}px`;
      frame.current.style.height = `${map.toMap(scrollTop + clientHeight) - top}px`;
    };
    follow();
    scroller.addEventListener('scroll', follow, { passive: true });
    return () => scroller.removeEventListener('scroll', follow);
  }, [view, map, fits]);
  if (fits) return <div className={styles.minimap} />;

  const scrollTo = ({ currentTarget, clientY }: PointerEvent) => {
    const position = map.toSheet(clientY - currentTarget.getBoundingClientRect().top);
    view.current!.scrollTop = position - viewHeight / 2;
  };
  const onPointerDown = (event: PointerEvent<HTMLDivElement>) => {
    if (event.button !== 0) return;
    isDragging.current = true;
    event.currentTarget.setPointerCapture(event.pointerId);
    scrollTo(event);
  };
  const onPointerMove = (event: PointerEvent) => isDragging.current && scrollTo(event);
  const onPointerUp = () => (isDragging.current = false);
  const onClick = ({ detail }: MouseEvent, top: number) => {
    // A pointer's press has scrolled already.
    if (detail === 0) view.current!.scrollTop = top;
  };

  return (
    <div
      role="group"
      className={styles.minimap}
      aria-label={i18next.t('words.minimap')}
      onPointerDown={onPointerDown}
      onPointerMove={onPointerMove}
      onPointerUp={onPointerUp}
      onPointerCancel={onPointerUp}
      onFocus={({ currentTarget, target }) => makeTabStop(target, buttonsOf(currentTarget))}
      onKeyDown={(event) => moveRovingFocus(event, buttonsOf(event.currentTarget))}
    >
      {rows.map((row, index) => (
        <button
          key={row.key}
          type="button"
          tabIndex={index === 0 ? 0 : -1}
          className={row.key === focusedRow ? styles.focused : undefined}
          style={{ height: map.heights[index]! - GAP }}
          aria-label={i18next.t('words.goToRow', { shortLabel: row.shortLabel, label: row.label })}
          onClick={(event) => onClick(event, tops[index]!)}
        >
          {row.shortLabel}
        </button>
      ))}
      <div ref={frame} className={styles.frame} />
    </div>
  );
}

function buttonsOf(map: HTMLElement): HTMLElement[] {
  return [...map.querySelectorAll('button')];
}
