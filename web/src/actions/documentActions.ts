import { UNTITLED_FILE_NAME, WORDS_FILE_TYPE } from '../document/fileType';
import { withLoading } from '../document/loading';
import { parseToolDocumentInSteps } from '../document/parseToolDocument';
import { isDialogAbortError } from '../host/dialogAbort';
import { fileService, type OpenedFile } from '../host/fileService';
import { fileFailureText } from '../host/nativePath';
import { i18next } from '../i18n';
import { inOneStep } from '../stores/history';
import { useSheetsStore } from '../stores/sheetsStore';
import { showError } from '../ui/notifications';
import { requestFirstWordFocus } from './firstWordFocus';
import { mayDiscardChanges } from './unsavedChangesPrompt';

const SAMPLE_FILE_NAME = 'sample.words.tessary';

/** The router's way to a route of the page. */
export type Navigate = (route: string) => void | Promise<void>;

/** Starts a new document with one sheet. Asks first when changes would be lost. */
export async function newDocument(navigate: Navigate): Promise<void> {
  if (!(await mayDiscardChanges())) return;
  const { reset, addSheet } = useSheetsStore.getState();
  inOneStep(() => {
    reset();
    addSheet();
  });
  requestFirstWordFocus();
  await navigate('/tools/words');
}

/** Lets the user choose a document and shows it. Asks first when changes would be lost. */
export function openDocument(navigate: Navigate): Promise<void> {
  return openWith(() => fileService.openFile(WORDS_FILE_TYPE), navigate);
}

/** Shows the document in a file that the user brought to the page. Asks first when changes would be lost. */
export function openFileOf(
  file: File,
  handle: Promise<FileSystemFileHandle | null>,
  navigate: Navigate,
): Promise<void> {
  return openWith(async () => {
    const kept = await handle;
    return { fileHandle: { name: file.name, ...(kept && { handle: kept }) }, content: await file.text() };
  }, navigate);
}

/** Shows a document to try things with. Nothing is lost when it goes again. */
export async function openSample(navigate: Navigate): Promise<void> {
  const { documentFile: before, updateWordsDocumentFileState } = useSheetsStore.getState();
  await openWith(() => Promise.resolve({ fileHandle: { name: SAMPLE_FILE_NAME }, content: SAMPLE_DOCUMENT }), navigate);
  const { documentFile } = useSheetsStore.getState();
  if (documentFile !== before) updateWordsDocumentFileState(documentFile);
}

/** Closes the document. Asks first when changes would be lost. */
export async function closeDocument(): Promise<void> {
  if (await mayDiscardChanges()) useSheetsStore.getState().reset();
}

async function openWith(read: () => Promise<OpenedFile>, navigate: Navigate): Promise<void> {
  if (!(await mayDiscardChanges())) return;
  try {
    const opened = await read();
    await withLoading(async (loading) => {
      const parsed = await parseToolDocumentInSteps(opened.content, loading);
      if (!parsed.success) return;
      const file = { ...opened.fileHandle, name: opened.fileHandle.name || UNTITLED_FILE_NAME };
      await useSheetsStore.getState().loadWordsDocument(parsed.data, file, loading);
      requestFirstWordFocus();
      await navigate(parsed.navigationRoute);
    });
  } catch (error) {
    if (!isDialogAbortError(error)) showError(fileFailureText(error, i18next.t('messages.file.open.error')));
  }
}
