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

/** Goes to the next item that begins with a typed character. */
export function seekByLetter(event: KeyboardEvent, items: readonly HTMLElement[]): void {
  if (event.key.length !== 1 || event.ctrlKey || event.metaKey || event.altKey) return;
  const index = items.indexOf(event.target as HTMLElement);
  const following = [...items.slice(index + 1), ...items.slice(0, index + 1)];
  const name = (item: HTMLElement) => (item.dataset.name ?? item.textContent).toLowerCase();
  following.find((item) => name(item).startsWith(event.key.toLowerCase()))?.focus();
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
