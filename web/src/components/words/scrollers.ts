import { createContext, type RefObject } from 'react';

type Scroller = RefObject<HTMLElement | null>;

/** What scrolls the row around a word sideways. */
export const RowScroller = createContext<Scroller>({ current: null });

/** What scrolls all rows up and down. */
export const SheetScroller = createContext<Scroller>({ current: null });
