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
let isPreview = false;

/** Outlines the bits that would change, until others are shown. @param bits - a one for each of them */
export function previewChange(sheetId: string | null, bits: bigint): void {
  clearTimeout(timer);
  isPreview = true;
  if (shownChange.bits !== bits) Object.assign(shownChange, { sheetId, bits, word: undefined });
}

/** Outlines nothing more, unless a change has come in the meantime. */
export function endPreview(): void {
  if (isPreview) Object.assign(shownChange, { bits: 0n, word: undefined });
}

/** @param bits - a one for each bit that changed */
export function showChange(sheetId: string | null, bits: bigint, word: ChangedWord | undefined): void {
  clearTimeout(timer);
  isPreview = false;
  Object.assign(shownChange, { sheetId, bits, word });
  timer = setTimeout(() => Object.assign(shownChange, { bits: 0n, word: undefined }), OUTLINE_TIME);
}
