import { create } from 'zustand';
import type { BitsTarget } from './focusedWord';
import { type FocusOrigin, focusOrigin, returnFocus } from './focusOrigin';

/** Where a panel appears, in pixels of the window: below `bottom`, or above `top` where there is no room. */
export type PanelPlace = Pick<DOMRect, 'left' | 'top' | 'bottom'>;

/** What of the word was pointed at. */
interface PointedAt {
  readonly bit?: number | undefined;
  readonly field?: HTMLElement | undefined;
}

/** What is shown over the words: a menu or a form that acts on one of them. */
export type WordPanel = { readonly word: BitsTarget; readonly place: PanelPlace } & (
  | ({ readonly kind: 'menu' | 'copyAs' } & PointedAt)
  | { readonly kind: 'paste'; readonly text: string }
  | { readonly kind: 'operation'; readonly text: string }
  | { readonly kind: 'inspect' }
  /** A text that could not be put on the clipboard. */
  | { readonly kind: 'text'; readonly text: string }
);

/** A panel without what is the same for all of one opening. */
export type PanelContent = WordPanel extends infer Panel
  ? Panel extends WordPanel
    ? Omit<Panel, 'word' | 'place'>
    : never
  : never;

export const useWordPanel = create<{ panel: WordPanel | undefined }>()(() => ({ panel: undefined }));

let origin: FocusOrigin | undefined;

/** @param place - by default at what has the focus */
export function openPanel(word: BitsTarget, content: PanelContent, place?: PanelPlace): void {
  const { panel } = useWordPanel.getState();
  if (!panel) origin = focusOrigin();
  const at = place ?? panel?.place ?? (origin && placeOf(origin.element)) ?? { left: 0, top: 0, bottom: 0 };
  useWordPanel.setState({ panel: { ...content, word, place: at } });
}

/** A wide bit field begins where it comes into view. */
function placeOf(element: HTMLElement): PanelPlace {
  const { left, top, bottom } = element.getBoundingClientRect();
  const row = element.closest('[data-scroller="row"]')?.getBoundingClientRect();
  return { left: Math.max(left, row?.left ?? left), top, bottom };
}

/** Closes the panel and gives the focus back. @param keepsText - brings a text back that was being typed */
export function closePanel(keepsText = true): void {
  if (!useWordPanel.getState().panel) return;
  useWordPanel.setState({ panel: undefined });
  const before = origin;
  origin = undefined;
  if (before) returnFocus(before, keepsText);
}

/** What has the focus, or had it before a panel took it. */
export function originElement(): HTMLElement | undefined {
  return origin?.element;
}
