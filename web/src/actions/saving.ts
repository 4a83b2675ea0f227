import { WORDS_FILE_TYPE } from '../document/fileType';
import { isDialogAbortError } from '../host/dialogAbort';
import type { FileHandle } from '../host/fileHandle';
import { fileService } from '../host/fileService';
import { fileFailureText } from '../host/nativePath';
import { i18next } from '../i18n';
import { historyPoint, noteSavedAt } from '../stores/history';
import { useSheetsStore } from '../stores/sheetsStore';
import { showError } from '../ui/notifications';

/*
 * One save is under way at a time, so that the text that was asked for last is the one that is written last. A save that
 * is asked for meanwhile follows when it is still needed, and no second dialog opens over a first one.
 */

type Kind = 'save' | 'saveAs';

let isAsking = false;
let isSaving = false;
/** What was asked for while another save was under way. */
let waiting: Kind | undefined;

/** Saves the document to its file, or asks for a place where it has none. */
export function saveDocument(): Promise<void> {
  return save('save');
}

/** Saves the document to a place that the user chooses. */
export function saveDocumentAs(): Promise<void> {
  return save('saveAs');
}

async function save(kind: Kind): Promise<void> {
  if (isSaving) {
    if (!isAsking || kind === 'save') waiting = kind;
    return;
  }
  const file = useSheetsStore.getState().documentFile;
  if (!file) return;
  isSaving = true;
  isAsking = kind === 'saveAs' || !(file.path ?? file.handle);
  const outcome = await write(file, kind);
  isSaving = false;
  const next = waiting;
  waiting = undefined;
  if (next === 'saveAs' || (next === 'save' && isStillNeeded(outcome))) await save(next);
}

/** Who cancelled the dialog has answered the second press, too; another document has nothing to do with it. */
function isStillNeeded(outcome: 'saved' | 'not saved' | 'another document'): boolean {
  return outcome !== 'not saved' && useSheetsStore.getState().isUnsaved;
}

async function write(file: FileHandle, kind: Kind): Promise<'saved' | 'not saved' | 'another document'> {
  try {
    const text = useSheetsStore.getState().getWordsDocument().toFileData();
    const point = historyPoint();
    const target = kind === 'save' ? file : { name: file.name };
    const outcome = await fileService.saveFile(text, target, file.name, WORDS_FILE_TYPE);
    const { documentFile, getWordsDocument, updateWordsDocumentFileState } = useSheetsStore.getState();
    // A dialog can be open for long: a document that was opened meanwhile is left alone.
    if (documentFile !== file) return 'another document';
    const isEdited = getWordsDocument().toFileData() !== text;
    updateWordsDocumentFileState((outcome.success && outcome.fileHandle) || file, isEdited);
    if (isEdited && outcome.success) noteSavedAt(point);
    return outcome.success ? 'saved' : 'not saved';
  } catch (error) {
    if (!isDialogAbortError(error)) showError(fileFailureText(error, i18next.t('messages.file.save.error')));
    return 'not saved';
  }
}
