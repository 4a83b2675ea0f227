import { showError } from '../ui/notifications';
import { withLoading } from '../document/loading';
import { parseToolDocumentInSteps } from '../document/parseToolDocument';
import { i18next } from '../i18n';
import { connectToEditor } from '../host/editorExtension';
import type { StartupTarget } from './nativeStartup';

let isConnected = false;
/** Documents are opened one after the other, so that the last one sent is the one that stays. */
let last: Promise<void> = Promise.resolve();

/** From now on shows every document that the editor sends. Connects once in the life of the page. */
export function followEditor(target: StartupTarget): void {
  if (isConnected) return;
  isConnected = true;
  connectToEditor((document) => {
    last = last.then(() => open(document, target)).catch(() => showError(i18next.t('messages.file.open.error')));
  });
}

function open(document: unknown, target: StartupTarget): Promise<void> {
  return withLoading(async (loading) => {
    const parsed = await parseToolDocumentInSteps(document, loading);
    if (!parsed.success) return;
    await target.load(parsed.data, undefined, loading);
    await target.navigate(parsed.navigationRoute);
  });
}
