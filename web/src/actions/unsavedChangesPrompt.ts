import { proxy } from 'valtio';
import { useSheetsStore } from '../stores/sheetsStore';

/** The question on the screen before unsaved changes are lost. */
export const unsavedChangesPrompt = proxy<{
  /** Takes the user's answer while the question is on the screen, else null. */
  answer: ((discard: boolean) => void) | null;
}>({ answer: null });

/**
 * Asks before unsaved changes are lost. While the question is open, a second one is answered with no.
 * @returns whether the open document may go: it is saved, or the user lets its changes go
 */
export async function mayDiscardChanges(): Promise<boolean> {
  if (!useSheetsStore.getState().isUnsaved) return true;
  if (unsavedChangesPrompt.answer) return false;
  return new Promise((resolve) => {
    unsavedChangesPrompt.answer = (discard) => {
      unsavedChangesPrompt.answer = null;
      resolve(discard);
    };
  });
}
