import type { KeyboardEvent } from 'react';

/**
 * Moves the focus within a list or grid of items by the arrow keys, Home and End.
 * @param items - in reading order
 * @param columns - of the grid; 1 for a list
 */
export function stepThrough(event: KeyboardEvent, items: readonly HTMLElement[], columns = 1): void {
  const at = items.indexOf(event.target as HTMLElement);
  const next = nextPlace(event.key, at, items.length, columns);
  if (next === undefined) return;
  event.preventDefault();
  items[Math.max(0, Math.min(items.length - 1, next))]?.focus();
}

function nextPlace(key: string, at: number, count: number, columns: number): number | undefined {
  if (key === 'Home') return 0;
  if (key === 'End') return count - 1;
  if (key === 'ArrowDown') return at + columns < count || columns === 1 ? at + columns : at;
  if (key === 'ArrowUp') return at - columns >= 0 || columns === 1 ? at - columns : at;
  if (columns > 1 && key === 'ArrowRight') return at + 1;
  if (columns > 1 && key === 'ArrowLeft') return at - 1;
  return undefined;
}
