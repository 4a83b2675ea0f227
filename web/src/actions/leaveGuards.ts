import { isCppBackend, isVsCode } from '../host/hostFlags';
import { useSheetsStore } from '../stores/sheetsStore';
import { mayDiscardChanges } from './unsavedChangesPrompt';

let isStartingAgain = false;

/** Whether the page holds work that no file holds. An editor keeps the document itself. */
export function hasUnsavedWork(): boolean {
  return useSheetsStore.getState().isUnsaved && !isVsCode;
}

/**
 * Before a tab with unsaved work goes away, the browser asks in its own words. The native host's window can only load the
 * page again, which has the work again then.
 */
export function onBeforeUnload(event: BeforeUnloadEvent): void {
  if (!hasUnsavedWork() || isStartingAgain) return;
  const isKept = isCppBackend && useSheetsStore.getState().persistState();
  if (!isKept) event.preventDefault();
}

/** Whether a reload has to go through `startAgain`: servers need to know "/" alone, and nothing is asked in vain. */
export function mustStartAgain(): boolean {
  return !isVsCode && (hasUnsavedWork() || location.pathname !== '/');
}

/**
 * Loads the page anew at "/". A browser has the sheets again then, so it asks only where they could not be kept; in the
 * native host the start page may open the command line's file in their place.
 */
export async function startAgain(): Promise<void> {
  const { persistState, reset } = useSheetsStore.getState();
  const isKept = persistState() && !isCppBackend;
  if (hasUnsavedWork() && !isKept) {
    if (!(await mayDiscardChanges())) return;
    reset();
    persistState();
  }
  isStartingAgain = true;
  location.replace('/');
}
