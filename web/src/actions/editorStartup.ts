import { withLoading } from '../document/loading';
import { parseToolDocumentInSteps } from '../document/parseToolDocument';
import { connectToEditor } from '../host/editorExtension';
import { i18next } from '../i18n';
import { useSheetsStore } from '../stores/sheetsStore';
import { showError } from '../ui/notifications';
import type { Navigate } from './documentActions';

let isConnected = false;
/** Documents are opened one after the other, so that the last one sent is the one that stays. */
let last: Promise<void> = Promise.resolve();

/** From now on shows every document that the editor sends. Connects once in the life of the page. */
export function followEditor(navigate: Navigate): void {
  if (isConnected) return;
  isConnected = true;
  connectToEditor((document) => {
    last = last.then(() => open(document, navigate)).catch(() => showError(i18next.t('messages.file.open.error')));
  });
}

function open(document: unknown, navigate: Navigate): Promise<void> {
  return withLoading(async (loading) => {
    const parsed = await parseToolDocumentInSteps(document, loading);
    if (!parsed.success) return;
    await useSheetsStore.getState().loadWordsDocument(parsed.data, undefined, loading);
    await navigate(parsed.navigationRoute);
  });
}
