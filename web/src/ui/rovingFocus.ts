import type { KeyboardEvent } from 'react';

/**
 * Moves the focus within a list or grid of items by the arrow keys, Home and End.
 * @param items - in reading order
 * @param columns - of the grid; 1 for a list
 */
export function moveRovingFocus(event: KeyboardEvent, items: readonly HTMLElement[], columns = 1): void {
  const index = items.indexOf(event.target as HTMLElement);
  const next = nextIndex(event.key, index, items.length, columns);
  if (next === undefined) return;
  event.preventDefault();
  items[Math.max(0, Math.min(items.length - 1, next))]?.focus();
}

/** Rest after which typing begins anew, in milliseconds. */
const TYPING_PAUSE = 600;

let typed = { text: '', at: -Infinity };

/** Goes to the next item that begins with what is typed; the same letter again goes on to the next one. */
export function seekByLetter(event: KeyboardEvent, items: readonly HTMLElement[]): void {
  if (event.key.length !== 1 || event.ctrlKey || event.metaKey || event.altKey) return;
  const isGoingOn = event.timeStamp - typed.at < TYPING_PAUSE;
  const text = (isGoingOn ? typed.text : '') + event.key.toLowerCase();
  typed = { text, at: event.timeStamp };
  const isOneLetter = [...text].every((letter) => letter === text[0]);
  const sought = isOneLetter ? text[0]! : text;
  const index = Math.max(0, items.indexOf(event.target as HTMLElement)) + (isOneLetter ? 1 : 0);
  const following = [...items.slice(index), ...items.slice(0, index)];
  const name = (item: HTMLElement) => (item.dataset.name ?? item.textContent).toLowerCase();
  following.find((item) => name(item).startsWith(sought))?.focus();
}

function nextIndex(key: string, index: number, count: number, columns: number): number | undefined {
  if (key === 'Home') return 0;
  if (key === 'End') return count - 1;
  if (key === 'ArrowDown') return index + columns < count || columns === 1 ? index + columns : index;
  if (key === 'ArrowUp') return index - columns >= 0 || columns === 1 ? index - columns : index;
  if (columns > 1 && key === 'ArrowRight') return index + 1;
  if (columns > 1 && key === 'ArrowLeft') return index - 1;
  return undefined;
}
