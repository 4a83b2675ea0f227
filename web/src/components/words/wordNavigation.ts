import { flushSync } from 'react-dom';
import type { Direction } from '../../commands/wordCommands';
import type { ChangedWord } from '../../stores/changeCause';
import { useSheetStore } from '../../stores/sheetStore';
import { isTextField } from '../../ui/alteredText';
import type { RowGeometry } from './layout/sheetGeometry';

/** Identifier of a word's element. */
export function blockId(rowKey: string, index: number): string {
  return `word-${rowKey.replace(':', '-')}-${index}`;
}

/** The word whose element it is. */
export function wordOfBlock({ id }: Element): ChangedWord {
  const [, type, bits, index] = id.split('-');
  return { type: type as ChangedWord['type'], bits: Number(bits), index: Number(index) };
}

/**
 * The word next to a word in a direction; the more significant one is at the left. Above is the word that holds it,
 * below the least significant of those that it holds.
 */
export function neighbour(
  rows: readonly Pick<RowGeometry, 'key' | 'bits' | 'count'>[],
  rowKey: string,
  index: number,
  direction: Direction,
): { rowKey: string; index: number } | undefined {
  const position = rows.findIndex(({ key }) => key === rowKey);
  const row = rows[position];
  if (!row) return undefined;
  if (direction === 'left' || direction === 'right') {
    const next = index + (direction === 'left' ? 1 : -1);
    return next >= 0 && next < row.count ? { rowKey, index: next } : undefined;
  }
  const target = rows[position + (direction === 'down' ? 1 : -1)];
  if (!target) return undefined;
  return { rowKey: target.key, index: Math.floor((index * row.bits) / target.bits) };
}

/** Gives a word the focus, in the same kind of control where it has one, a text selected. It is mounted first if it was not. */
export function focusWord(row: RowGeometry, index: number, focusKey: string): void {
  flushSync(() => useSheetStore.getState().focus(row.type, row.bits, index));
  const block = document.getElementById(blockId(row.key, index));
  const control = block && controlOf(block, focusKey);
  control?.focus();
  if (isTextField(control)) control.select();
}

/**
 * Gives a word's main field the focus with its text selected, and scrolls nothing: what is typed brings it into view.
 * @returns whether the word is there; if not, it will be with the next render
 */
export function selectMainField(row: RowGeometry, index: number): boolean {
  useSheetStore.getState().focus(row.type, row.bits, index);
  const block = document.getElementById(blockId(row.key, index));
  const field = block && controlOf(block, 'value');
  field?.focus({ preventScroll: true });
  if (isTextField(field)) field.select();
  return block !== null;
}

/** A word's control of a kind, or its main field where it has none. */
export function controlOf(block: Element, focusKey: string): HTMLElement | undefined {
  const control =
    block.querySelector<HTMLElement>(`[data-focus-key="${CSS.escape(focusKey)}"]`) ??
    block.querySelector<HTMLElement>('[data-focus-key="value"], [data-focus-key="text"]');
  return control ?? undefined;
}
