import { isCppBackend } from '../host/hostFlags';
import { isAfterCrash } from '../host/reloadMark';
import { i18next } from '../i18n';
import { useSheetsStore } from '../stores/sheetsStore';
import { showWarning } from '../ui/notifications';
import type { Navigate } from './documentActions';

let isLoaded = false;

/** Whether the first call of `showRestoredWork` has something to show or to say. */
export function hasRestoredWork(): boolean {
  if (isLoaded || !isCppBackend) return false;
  const { documentFile, isUnsaved } = useSheetsStore.getState();
  return isAfterCrash || (documentFile !== null && isUnsaved);
}

/**
 * Shows what the page had before the native host loaded it again. The document that the host was started with must not
 * take the place of unsaved work then, nor of anything after the page's process died. To be asked before that document
 * is opened; only the first time in the page's life counts.
 * @returns whether there is nothing to open any more
 */
export async function showRestoredWork(navigate: Navigate): Promise<boolean> {
  const isThere = hasRestoredWork();
  isLoaded = true;
  if (!isThere) return false;
  const { documentFile } = useSheetsStore.getState();
  await Promise.resolve(); // the router listens when all of the page is there
  if (isAfterCrash) showWarning(i18next.t(documentFile ? 'messages.restart.restored' : 'messages.restart.empty'));
  if (documentFile) await navigate('/tools/words');
  return true;
}
