import { create } from 'zustand';
import type { ChangedWord } from '../stores/changeCause';
import { isTextField } from '../ui/alteredText';

/** Where a panel appears, in pixels of the window: below `bottom`, or above `top` where there is no room. */
export type PanelPlace = Pick<DOMRect, 'left' | 'top' | 'bottom'>;

/** What of the word was pointed at. */
interface PointedAt {
  readonly bit?: number | undefined;
  readonly field?: HTMLElement | undefined;
}

/** What is shown over the words: a menu or a form that acts on one of them. */
export type WordPanel = { readonly word: ChangedWord; readonly place: PanelPlace } & (
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

/** Where the focus was, with the text that was being typed there: it would be gone when the field is left. */
interface Origin {
  readonly element: HTMLElement;
  readonly text?: string;
  readonly selection?: readonly [number | null, number | null];
}

let origin: Origin | undefined;

/** @param place - by default at what has the focus */
export function openPanel(word: ChangedWord, content: PanelContent, place?: PanelPlace): void {
  const { panel } = useWordPanel.getState();
  if (!panel) origin = originOf(document.activeElement);
  const at = place ?? panel?.place ?? origin?.element.getBoundingClientRect() ?? { left: 0, top: 0, bottom: 0 };
  useWordPanel.setState({ panel: { ...content, word, place: at } });
}

/** Closes the panel and gives the focus back. @param keepsText - brings a text back that was being typed */
export function closePanel(keepsText = true): void {
  if (!useWordPanel.getState().panel) return;
  useWordPanel.setState({ panel: undefined });
  const before = origin;
  origin = undefined;
  before?.element.focus({ preventScroll: true });
  if (before?.selection && keepsText) restoreText(before);
}

/** What has the focus, or had it before a panel took it. */
export function originElement(): HTMLElement | undefined {
  return origin?.element;
}

function originOf(element: Element | null): Origin | undefined {
  if (!(element instanceof HTMLElement) || element === document.body) return undefined;
  if (!isTextField(element)) return { element };
  return { element, text: element.value, selection: [element.selectionStart, element.selectionEnd] };
}

function restoreText({ element, text, selection }: Origin): void {
  if (!isTextField(element)) return;
  element.value = text!;
  element.setSelectionRange(...selection!);
}
