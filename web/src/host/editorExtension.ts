import debounce from 'lodash.debounce';
import type { WordsDocumentData } from '../document/schema';
import { vsCodeApi } from './hostFlags';

/** Rest after an edit before it is posted to the editor, in milliseconds. */
export const UPDATE_DELAY = 300;
/** Rest after a document came from the editor before edits are posted again, in milliseconds. */
const RESUME_DELAY = 500;

/** Gives the document with the edits that were not posted yet; undefined when all are. */
let waiting: (() => WordsDocumentData) | undefined;
/** The text of what was posted last; undefined when the editor has sent another document since. */
let lastPosted: string | undefined;
let isSuspended = false;
/** Whether the document that the page shows is no longer the one that the editor sent last. */
let isBeingReplaced = false;
let resumeTimer: ReturnType<typeof setTimeout> | undefined;

const postSoon = debounce(() => !isSuspended && postWaiting(), UPDATE_DELAY);

/** Posts the document to the editor as it is after a short rest. Does nothing in other hosts. */
export function postDocumentUpdate(getData: () => WordsDocumentData): void {
  if (!vsCodeApi) return;
  waiting = getData;
  if (!isSuspended) postSoon();
}

/** Stops updates, also one that is waiting: the document is being replaced by the editor's own. */
export function suspendDocumentUpdates(): void {
  clearTimeout(resumeTimer);
  isSuspended = isBeingReplaced = true;
  postSoon.cancel();
}

/**
 * Lets updates through again after a rest, beginning with what was edited meanwhile.
 * @param isReplaced - whether the document was replaced; edits of the old one are void then
 * @param delay - the rest in milliseconds
 */
export function resumeDocumentUpdates(isReplaced: boolean, delay = RESUME_DELAY): void {
  if (isReplaced) waiting = lastPosted = undefined;
  isBeingReplaced = false;
  clearTimeout(resumeTimer);
  resumeTimer = setTimeout(() => {
    isSuspended = false;
    postWaiting();
  }, delay);
}

/** Whether a document from the editor is what the page posted last, so that there is nothing to load. */
export function isPostedLast(document: WordsDocumentData): boolean {
  return JSON.stringify(document) === lastPosted;
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
  postBeforeLeaving();
  vsCodeApi?.postMessage({ type: 'ready' });
}

/** What the user does next may be the editor's to do, such as saving: it must have the edits before. */
function postBeforeLeaving(): void {
  const flush = () => postSoon.flush();
  window.addEventListener('blur', flush);
  document.addEventListener('visibilitychange', flush);
  // The editor's own keys, such as those that save and undo. Before the editor's listener, which stands on the window too.
  window.addEventListener('keydown', ({ ctrlKey, metaKey }) => (ctrlKey || metaKey) && flush(), { capture: true });
  window.addEventListener('pagehide', postWaiting); // nothing comes later, so not even a suspension holds it back
}

function postWaiting(): void {
  if (!waiting || isBeingReplaced) return;
  const data = waiting();
  waiting = undefined;
  postSoon.cancel();
  lastPosted = JSON.stringify(data);
  vsCodeApi?.postMessage({ type: 'updateDocument', data });
}

function rawContentOf(data: unknown): unknown {
  return typeof data === 'object' && data !== null ? (data as { rawContent?: unknown }).rawContent : undefined;
}
