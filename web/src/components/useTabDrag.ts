import { type PointerEvent, type RefObject, useCallback, useLayoutEffect, useRef, useState } from 'react';

/** Farther than this, in CSS pixels, a press is a drag. */
const THRESHOLD = 6;

export interface TabDrag {
  sheetId: string;
  /** Where the sheet goes when it is let go, counted from 0 in tab order. */
  place: number;
}

interface Strip {
  /** The box of the tabs that are on the page, the first of which is number `first`. */
  tabs: RefObject<HTMLElement | null>;
  first: number;
  count: number;
  tabWidth: number;
}

/**
 * Lets the user drag a tab to another place. Escape lets it be.
 * @param move - is called at the end of a drag, once
 */
export function useTabDrag(strip: Strip, move: (drag: TabDrag) => void) {
  const [drag, setDrag] = useState<TabDrag>();
  const latest = useRef({ strip, move });
  useLayoutEffect(() => {
    latest.current = { strip, move };
  });

  const start = useCallback((sheetId: string, { button, clientX: from }: PointerEvent) => {
    if (button !== 0) return;
    let current: TabDrag | undefined;
    const placeAt = (x: number) => {
      const { tabs, first, count, tabWidth } = latest.current.strip;
      const offset = Math.floor((x - (tabs.current?.getBoundingClientRect().left ?? 0)) / tabWidth);
      return Math.max(0, Math.min(count - 1, first + offset));
    };
    const listeners = new AbortController();
    const end = () => {
      listeners.abort();
      setDrag(undefined);
    };
    const on = <Type extends keyof WindowEventMap>(type: Type, act: (event: WindowEventMap[Type]) => void) =>
      addEventListener(type, act, { signal: listeners.signal, capture: true });
    on('pointermove', ({ clientX, buttons }) => {
      if (buttons === 0) return end();
      if (!current && Math.abs(clientX - from) < THRESHOLD) return;
      current = { sheetId, place: placeAt(clientX) };
      setDrag(current);
    });
    on('pointerup', () => {
      end();
      if (current) latest.current.move(current);
    });
    on('pointercancel', end);
    on('keydown', (event) => {
      if (event.key !== 'Escape' || !current) return;
      event.stopPropagation();
      end();
    });
  }, []);
  return { drag, start };
}
