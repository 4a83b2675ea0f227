import { isCppBackend, isVsCode } from '../host/hostFlags';
import { useSheetsStore } from '../stores/sheetsStore';
import { BackGuard } from './backGuard';
import { mayDiscardChanges } from './unsavedChangesPrompt';

/** Whether the page holds work that leaving it would lose. An editor keeps the document itself. */
function hasUnsavedWork(): boolean {
  return useSheetsStore.getState().isUnsaved && !isVsCode;
}

async function discardOrStay(): Promise<boolean> {
  if (!(await mayDiscardChanges())) return false;
  useSheetsStore.getState().reset();
  return true;
}

/** Going back to the start page opens the command line's file again, in place of the one that is open. */
export const backGuard = new BackGuard((from, to) => (from !== to && hasUnsavedWork() ? discardOrStay() : undefined));

/** Before a tab with unsaved work goes away, the browser asks in its own words. */
export function onBeforeUnload(event: BeforeUnloadEvent): void {
  if (hasUnsavedWork()) event.preventDefault();
}

/**
 * Whether a reload has to go through `startAgain`: unsaved work is asked for first, and the native host serves "/" alone.
 */
export function mustStartAgain(): boolean {
  return hasUnsavedWork() || (isCppBackend && location.pathname !== '/');
}

/** Loads the page anew at "/", unless the user wants to keep unsaved work. */
export async function startAgain(): Promise<void> {
  if (hasUnsavedWork() && !(await discardOrStay())) return;
  useSheetsStore.getState().persistState();
  location.replace('/');
}
