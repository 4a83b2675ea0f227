import { proxy } from 'valtio';
import type { ChangedWord } from '../stores/changeCause';

/** How long the bits that changed are outlined, in milliseconds. */
const OUTLINE_TIME = 600;

/** The change that undo or redo made last, for the views to show. */
export const shownChange = proxy<{
  sheetId: string | null;
  /** A one for each bit of the sheet's value to be outlined; zero when the time is over. */
  bits: bigint;
  /** Scrolled into view; undefined when the change was about no word. */
  word: ChangedWord | undefined;
}>({ sheetId: null, bits: 0n, word: undefined });

let timer: ReturnType<typeof setTimeout> | undefined;

/** @param bits - a one for each bit that changed */
export function showChange(sheetId: string | null, bits: bigint, word: ChangedWord | undefined): void {
  clearTimeout(timer);
  Object.assign(shownChange, { sheetId, bits, word });
  timer = setTimeout(() => Object.assign(shownChange, { bits: 0n, word: undefined }), OUTLINE_TIME);
}
