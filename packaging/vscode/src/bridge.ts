/*
 * Runs in the web view before the page's own script: makes the editor the host that the page knows.
 */
import type { ExtensionMessage, PageMessage, PageUpdate } from './messages';

const api = acquireVsCodeApi!(); // handed out only once
/** The number of the last document that the page was sent. */
let seen = 0;
/** Updates that the page posted and the extension has not taken yet. */
let underWay = 0;
/** Keys for the editor that wait for them. */
const waiting: KeyboardEvent[] = [];

const post = (message: PageMessage): void => {
  if (message.type === 'updateDocument') underWay++;
  api.postMessage(message);
};

window.acquireVsCodeApi = () => ({ ...api, postMessage: (message) => post({ ...(message as PageUpdate), seen }) });
window.openExternalUrl = (url) => post({ type: 'openExternalUrl', url });

/** The page posts what it holds back when it goes, also while it rests after a document. */
const postAll = (): unknown => window.dispatchEvent(new Event('pagehide'));

window.addEventListener('message', ({ data }: MessageEvent<ExtensionMessage>) => {
  switch (data.type) {
    case 'document':
      postAll(); // the document would end what is held back
      seen = data.number;
      window.dispatchEvent(new CustomEvent('vscode-session-data', { detail: { data: data.data } }));
      break;
    case 'flush':
      postAll();
      post({ type: 'flushed' });
      break;
    case 'taken':
      underWay--;
      if (underWay === 0) for (const key of waiting.splice(0)) passOn(key);
  }
});

/** A pointer may close the editor next. */
window.addEventListener('blur', postAll);

/*
 * The editor listens at the window. A key that the page has used is not the editor's too; another one, such as the key
 * that closes the editor, reaches it after the last edit, which would be lost otherwise.
 */
document.addEventListener('keydown', (event) => {
  if (event.defaultPrevented) return event.stopPropagation();
  if (!event.isTrusted || !isForEditor(event)) return;
  postAll();
  if (underWay === 0) return;
  event.preventDefault();
  event.stopPropagation();
  waiting.push(event);
});

function isForEditor({ key, ctrlKey, metaKey, altKey }: KeyboardEvent): boolean {
  return (ctrlKey || metaKey || altKey || /^F\d+$/.test(key)) && !['Control', 'Meta', 'Alt', 'AltGraph'].includes(key);
}

/** A copy that is not trusted is the editor's all the same. It goes by the old codes. */
function passOn(event: KeyboardEvent): void {
  const { key, code, location, repeat, ctrlKey, metaKey, altKey, shiftKey } = event;
  // eslint-disable-next-line @typescript-eslint/no-deprecated -- the editor reads it
  const { keyCode } = event;
  const init = { key, code, location, repeat, ctrlKey, metaKey, altKey, shiftKey, keyCode, which: keyCode };
  window.dispatchEvent(new KeyboardEvent('keydown', init));
}
