import { create } from 'zustand';
import type { BitsTarget } from './focusedWord';
import { type FocusOrigin, focusOrigin, returnFocus } from './focusOrigin';

/** What the status line asks for: bits to go to, a number to write into some, or a name for them. */
export interface RangePrompt {
  readonly kind: 'goTo' | 'write' | 'name';
  /** What is written into or named. */
  readonly target?: BitsTarget;
}

export const useRangePrompt = create<{ prompt: RangePrompt | undefined }>()(() => ({ prompt: undefined }));

let origin: FocusOrigin | undefined;

export function askForRange(prompt: RangePrompt): void {
  if (!useRangePrompt.getState().prompt) origin = focusOrigin();
  useRangePrompt.setState({ prompt });
}

/** Ends the question. @param returns - gives the focus back to what had it before */
export function closeRangePrompt(returns: boolean): void {
  if (!useRangePrompt.getState().prompt) return;
  useRangePrompt.setState({ prompt: undefined });
  const before = origin;
  origin = undefined;
  if (before && returns) returnFocus(before);
}
