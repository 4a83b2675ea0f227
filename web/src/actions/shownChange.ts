import { proxy } from 'valtio';
import { endOutline, outlineBits } from '../stores/bitOutlines';
import type { ChangedWord } from '../stores/changeCause';

/** How long the bits that changed are outlined, in milliseconds. */
const OUTLINE_TIME = 600;

/** The word that changed last, for the sheet to scroll it into view; undefined when the change was about no word. */
export const shownChange = proxy<{ word: ChangedWord | undefined }>({ word: undefined });

let timer: ReturnType<typeof setTimeout> | undefined;
let isPreview = false;

/** Outlines the bits that would change, until others are shown. @param bits - a one for each of them */
export function previewChange(sheetId: string | null, bits: bigint): void {
  clearTimeout(timer);
  isPreview = true;
  outlineBits('changed', sheetId, bits);
}

/** Outlines nothing more, unless a change has come in the meantime. */
export function endPreview(): void {
  if (isPreview) endOutline('changed');
}

/** @param bits - a one for each bit that changed */
export function showChange(sheetId: string | null, bits: bigint, word: ChangedWord | undefined): void {
  clearTimeout(timer);
  isPreview = false;
  outlineBits('changed', sheetId, bits);
  shownChange.word = word && { ...word };
  timer = setTimeout(() => endOutline('changed'), OUTLINE_TIME);
}
