import { i18next } from '../i18n';
import { applyOperation, type OperationResult } from '../model/operations/readOperation';
import type { Result } from '../model/result';
import { showStatus } from '../ui/statusMessage';
import { type BitsTarget, valueOf, widthOf, wordOfSheet, writeWord } from './focusedWord';

/** Operations that were applied, the last one first; kept for as long as the page is open. */
export const appliedOperations: string[] = [];

const LONGEST_LIST = 30;

/** What an operation would make of a word. */
export function previewOperation(word: BitsTarget, text: string): Result<OperationResult> {
  return applyOperation(text, valueOf(word), widthOf(word), (name) => wordOfSheet(name, word));
}

/** Applies an operation as one step and says what it lost. @returns whether it could be applied */
export function operate(word: BitsTarget, text: string): boolean {
  const result = previewOperation(word, text);
  const name = text.trim().replace(/\s+/g, ' ');
  if (!result.ok) {
    showStatus(`${name}: ${result.reason}`);
    return false;
  }
  writeWord(word, result.value.word, name);
  const place = appliedOperations.indexOf(name);
  if (place >= 0) appliedOperations.splice(place, 1);
  appliedOperations.unshift(name);
  appliedOperations.length = Math.min(appliedOperations.length, LONGEST_LIST);
  showStatus(i18next.t(result.value.isLossy ? 'panels.operatedLossy' : 'panels.operated', { name }));
  return true;
}
