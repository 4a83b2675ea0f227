import { proxy } from 'valtio';

export type TextElement = HTMLInputElement | HTMLTextAreaElement;

export function isTextField(element: unknown): element is TextElement {
  return element instanceof HTMLInputElement || element instanceof HTMLTextAreaElement;
}
/** Marks a field that holds what was typed and not yet taken over, for style sheets. */
const MARK = 'data-altered';

/** What fields show that nobody typed. */
const shownTexts = new WeakMap<TextElement, string>();

/** Whether some field holds a text that was typed and not yet taken over. */
export const typing = proxy({ isPending: false });

/** Puts a text into a field as its own, not as something that was typed. */
export function showText(field: TextElement, text: string): void {
  field.value = text;
  shownTexts.set(field, text);
  mark(field);
}

/** Marks a field after each letter that is typed into it. */
export function noteTyping(field: TextElement): void {
  mark(field);
}

/** Whether a field holds something that was typed and not yet taken over. */
export function isAltered(field: TextElement): boolean {
  return field.value !== (shownTexts.get(field) ?? field.defaultValue);
}

/** Whether the keyboard is in such a field, or in one of a form over the page, which is only there to be typed in. */
export function isTextBeingAltered(): boolean {
  const { activeElement } = document;
  return (
    isTextField(activeElement) &&
    !activeElement.readOnly &&
    (isAltered(activeElement) || activeElement.closest('[data-popup]') !== null)
  );
}

function mark(field: TextElement): void {
  const isNow = isAltered(field);
  if (field.hasAttribute(MARK) === isNow) return;
  field.toggleAttribute(MARK, isNow);
  typing.isPending = isNow;
}
