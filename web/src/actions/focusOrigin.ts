import { isTextField, noteTyping } from '../ui/alteredText';

/** Where the focus was, with the text that was being typed there: it would be gone when the field is left. */
export interface FocusOrigin {
  readonly element: HTMLElement;
  readonly text?: string;
  readonly selection?: readonly [number | null, number | null];
}

/** Undefined where nothing has the focus. */
export function focusOrigin(): FocusOrigin | undefined {
  const { activeElement: element } = document;
  if (!(element instanceof HTMLElement) || element === document.body) return undefined;
  if (!isTextField(element)) return { element };
  return { element, text: element.value, selection: [element.selectionStart, element.selectionEnd] };
}

/** Gives the focus back. @param keepsText - brings a text back that was being typed */
export function returnFocus({ element, text, selection }: FocusOrigin, keepsText = true): void {
  element.focus({ preventScroll: true });
  if (!isTextField(element) || !keepsText) return;
  element.value = text!;
  element.setSelectionRange(...selection!);
  noteTyping(element);
}
