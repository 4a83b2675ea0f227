import { proxy } from 'valtio';
import { type Loading, withLoading } from '../document/loading';
import { parseToolDocumentInSteps } from '../document/parseToolDocument';
import type { WordsDocumentData } from '../document/schema';
import {
  connectToEditor,
  isPostedLast,
  resumeDocumentUpdates,
  suspendDocumentUpdates,
  UPDATE_DELAY,
} from '../host/editorExtension';
import { i18next } from '../i18n';
import { useSheetsStore } from '../stores/sheetsStore';
import type { Navigate } from './documentActions';

/** What the editor has instead of a document that can be shown, such as the marks of a merge; else null. */
export const editorProblem = proxy<{ text: string | null }>({ text: null });

let isConnected = false;
/** Documents are opened one after the other, so that the last one sent is the one that stays. */
let last: Promise<void> = Promise.resolve();

/** From now on shows every document that the editor sends. Connects once in the life of the page. */
export function followEditor(navigate: Navigate): void {
  if (isConnected) return;
  isConnected = true;
  connectToEditor((document) => {
    last = last
      .then(() => withLoading((loading) => open(document, navigate, loading)))
      .catch(() => i18next.t('messages.file.open.error'))
      .then((problem) => void (editorProblem.text = problem));
  });
}

/** @returns what is wrong with the document, or null */
async function open(document: unknown, navigate: Navigate, loading: Loading): Promise<string | null> {
  suspendDocumentUpdates(); // whatever is posted from now on would be taken for an edit of this document
  const parsed = await parseToolDocumentInSteps(document, loading, false);
  const isNew = parsed.success && !isShown(parsed.data);
  if (isNew) await useSheetsStore.getState().loadWordsDocument(parsed.data, undefined, loading);
  else resumeDocumentUpdates(false, UPDATE_DELAY);
  if (!parsed.success) return parsed.error;
  await navigate(parsed.navigationRoute);
  return null;
}

/** The page has the document already, with signs, positions and focus that loading would reset. */
function isShown(data: WordsDocumentData): boolean {
  const { documentFile, getWordsDocument } = useSheetsStore.getState();
  if (documentFile === null) return false;
  return isPostedLast(data) || JSON.stringify(data) === JSON.stringify(getWordsDocument().toData());
}
