import { onHostEvent } from '../host/hostEvents';
import { i18next } from '../i18n';
import { forgetRecord } from '../stores/persistStorage';
import { hasUnsavedWork } from './leaveGuards';

/** From now on answers what the native host asks about the window's end. */
export function answerWindowEvents(): void {
  onHostEvent('tessary-close', () => (hasUnsavedWork() ? discardQuestion() : undefined));
  onHostEvent('tessary-end', forgetRecord);
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
