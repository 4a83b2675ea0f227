import { displayName } from '../../package.json';
import { onHostEvent } from '../host/hostEvents';
import { isCppBackend } from '../host/hostFlags';
import { i18next } from '../i18n';
import { stepBetween } from '../stores/documentStep';
import { forgetRecord } from '../stores/persistStorage';
import type { SheetsState } from '../stores/sheetsState';
import { useSheetsStore } from '../stores/sheetsStore';
import { hasUnsavedWork } from './leaveGuards';

/** From now on answers what the native host asks about the window's end. */
export function answerWindowEvents(): void {
  onHostEvent('tessary-close', () => (hasUnsavedWork() ? discardQuestion() : undefined));
  onHostEvent('tessary-work', ({ whole }) => unsavedWork(whole === true));
  onHostEvent('tessary-end', forgetRecord);
  if (!isCppBackend) return;
  markTitle();
  useSheetsStore.subscribe(markTitle);
}

/** The host sees the title without a question. Its window has a title of its own, so that users see no mark. */
function markTitle() {
  const title = hasUnsavedWork() ? `${displayName}*` : displayName;
  if (document.title !== title) document.title = title;
}

/** The document as the host got it last; undefined when it has nothing of what is open now. */
let given: SheetsState | undefined;

/** The host keeps a copy of it, and asks again and again: a text is made where there is something new alone. */
function unsavedWork(isWhole: boolean) {
  if (!hasUnsavedWork()) {
    given = undefined;
    return { state: 'none' };
  }
  const now = useSheetsStore.getState();
  const isSame = given?.documentFile === now.documentFile && !stepBetween(given, now);
  given = now;
  if (isSame && !isWhole) return { state: 'same' };
  return { state: 'changed', name: now.documentFile?.name ?? '', text: now.getWordsDocument().toFileData() };
}

/** The host asks it in a message box of its own: the page may be hidden or slow. */
function discardQuestion() {
  return {
    title: i18next.t('dialogs.unsaved.title'),
    text: i18next.t('dialogs.unsaved.text'),
    discard: i18next.t('ui.discard'),
    cancel: i18next.t('ui.cancel'),
  };
}
