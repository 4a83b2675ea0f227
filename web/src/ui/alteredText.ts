type TextElement = HTMLInputElement | HTMLTextAreaElement;

export function isTextField(element: unknown): element is TextElement {
  return element instanceof HTMLInputElement || element instanceof HTMLTextAreaElement;
}

/** What fields show that nobody typed. */
const shownTexts = new WeakMap<TextElement, string>();

/** Puts a text into a field as its own, not as something that was typed. */
export function showText(field: TextElement, text: string): void {
  field.value = text;
  shownTexts.set(field, text);
}

/** Whether a field holds something that was typed and not yet taken over. */
export function isAltered(field: TextElement): boolean {
  return field.value !== (shownTexts.get(field) ?? field.defaultValue);
}

/** Whether the keyboard is in such a field. */
export function isTextBeingAltered(): boolean {
  const { activeElement } = document;
  return isTextField(activeElement) && !activeElement.readOnly && isAltered(activeElement);
}
