import { useEffect } from 'react';
import { isTextField, type TextElement } from './alteredText';

/** Characters that an engine lays out at once; a million of them take it a second. */
const LONGEST = 5000;
/** Characters that are shown of a longer text at its beginning and, as many, at its end. */
const ENDS = 24;
/** Stands for the part that is not shown, with the number of its characters. */
const MARK = /…\(\d+\)…/g;

/** The parts that a field does not show, by their marks. They are kept for the field's undo. */
const parts = new WeakMap<TextElement, Map<string, string>>();

/** What a field holds, or some of its text, with the parts that are not shown. */
export function fullText(field: TextElement, shown = field.value): string {
  const known = parts.get(field);
  return known ? shown.replace(MARK, (mark) => known.get(mark) ?? mark) : shown;
}

/**
 * Puts a text in the place of a field's selection, so that the field's undo takes it back. Where the field's text gets too
 * long by that to be laid out, the middle of the new part is kept aside, with a mark in its place.
 */
export function insertText(field: TextElement, text: string): void {
  const shown = isTooLong(field, text) ? shortened(field, text.replace(/[\r\n]+/g, '')) : text;
  // eslint-disable-next-line @typescript-eslint/no-deprecated -- nothing else enters the browser's own history
  document.execCommand(shown === '' ? 'delete' : 'insertText', false, shown);
}

/** Fields of words show both ends of long texts, wherever these come from; what is copied of them is the whole text. */
export function useLongTexts(): void {
  useEffect(() => {
    const onInsert = (event: InputEvent) => {
      const { target, data } = event;
      if (!isWordField(target) || !data || !isTooLong(target, data)) return;
      event.preventDefault();
      insertText(target, data);
    };
    const onCopy = (event: ClipboardEvent) => {
      const { target, type } = event;
      if (!isTextField(target)) return;
      const selected = target.value.slice(target.selectionStart ?? 0, target.selectionEnd ?? 0);
      const text = fullText(target, selected);
      if (text === selected) return;
      event.preventDefault();
      event.clipboardData?.setData('text/plain', text);
      if (type === 'cut') insertText(target, '');
    };
    addEventListener('beforeinput', onInsert);
    addEventListener('copy', onCopy);
    addEventListener('cut', onCopy);
    return () => {
      removeEventListener('beforeinput', onInsert);
      removeEventListener('copy', onCopy);
      removeEventListener('cut', onCopy);
    };
  }, []);
}

function isWordField(target: EventTarget | null): target is TextElement {
  return isTextField(target) && target.closest('[data-fields]') !== null;
}

function isTooLong(field: TextElement, added: string): boolean {
  return added.length > 3 * ENDS && field.value.length + added.length > LONGEST;
}

function shortened(field: TextElement, text: string): string {
  const known = parts.get(field) ?? new Map<string, string>();
  parts.set(field, known);
  // A mark stands for one text only: where another one has as many characters, some more are shown.
  for (let start = ENDS; ; start++) {
    const part = text.slice(start, -ENDS);
    const mark = `…(${part.length})…`;
    if ((known.get(mark) ?? part) !== part) continue;
    known.set(mark, part);
    return text.slice(0, start) + mark + text.slice(-ENDS);
  }
}
