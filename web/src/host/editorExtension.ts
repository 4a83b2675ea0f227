import debounce from 'lodash.debounce';
import type { WordsDocumentData } from '../document/schema';
import { vsCodeApi } from './hostFlags';

/** Rest after an edit before it is posted to the editor, in milliseconds. */
const UPDATE_DELAY = 300;
/** Rest after a document came from the editor before edits are posted again, in milliseconds. */
const RESUME_DELAY = 500;

let isSuspended = false;
let resumeTimer: ReturnType<typeof setTimeout> | undefined;

const post = debounce((getData: () => WordsDocumentData) => {
  vsCodeApi?.postMessage({ type: 'updateDocument', data: getData() });
}, UPDATE_DELAY);

/** Posts the document to the editor as it is after a short rest. Does nothing in other hosts. */
export function postDocumentUpdate(getData: () => WordsDocumentData): void {
  if (vsCodeApi && !isSuspended) post(getData);
}

/** Stops updates, also one that is waiting: the document is being replaced by the editor's own. */
export function suspendDocumentUpdates(): void {
  clearTimeout(resumeTimer);
  isSuspended = true;
  post.cancel();
}

/** Lets updates through again after a rest. */
export function resumeDocumentUpdates(): void {
  clearTimeout(resumeTimer);
  resumeTimer = setTimeout(() => {
    isSuspended = false;
  }, RESUME_DELAY);
}

/**
 * Reports to the editor that the page is ready and hands over every document that it sends from then on.
 * @param receive - gets JSON text or an object, neither of them checked
 */
export function connectToEditor(receive: (document: unknown) => void): void {
  window.addEventListener('vscode-session-data', (event) => {
    const data: unknown = (event as CustomEvent<{ data?: unknown } | null>).detail?.data;
    receive(rawContentOf(data) || data);
  });
  vsCodeApi?.postMessage({ type: 'ready' });
}

function rawContentOf(data: unknown): unknown {
  return typeof data === 'object' && data !== null ? (data as { rawContent?: unknown }).rawContent : undefined;
}
