import { flushSync } from 'react-dom';
import type { ChangedWord } from '../../../stores/changeCause';
import { useSheetStore } from '../../../stores/sheetStore';
import { blockId } from '../wordNavigation';
import { bitCursors } from './bitCursors';

/** Puts the keyboard's cursor on a bit of a word and scrolls there; that of a color is in the row of integers. */
export function focusBit({ bits, index }: Pick<ChangedWord, 'bits' | 'index'>, bit: number): void {
  flushSync(() => useSheetStore.getState().focus('integer', bits, index));
  const block = document.getElementById(blockId(`integer:${bits}`, index));
  const canvas = block?.querySelector<HTMLElement>('[data-focus-key="bits"]');
  if (!canvas) return;
  canvas.focus({ preventScroll: true });
  bitCursors.get(canvas)?.(bit);
}
