// @vitest-environment jsdom
import { afterEach, beforeEach, expect, test, vi } from 'vitest';

const KEY = 'bits-sheets-storage';
const BEGUN = 'tessary-run';

/** Loads the page's code as the native host's page does. */
async function loadPage() {
  vi.resetModules();
  window.tessary = { backend: { implementation: 'cpp' } };
  const { answerWindowEvents } = await import('./windowEvents');
  const { useSheetsStore } = await import('../stores/sheetsStore');
  answerWindowEvents();
  return useSheetsStore;
}

/** Sends an event as the host's script does. */
function send(name: string, question = {}): unknown {
  const detail: { answer?: unknown } = { ...question };
  const event = new CustomEvent(name, { cancelable: true, detail });
  return window.dispatchEvent(event) ? null : event.detail.answer;
}

beforeEach(() => {
  localStorage.clear();
  sessionStorage.clear();
});
// What a page still has to write must not come into the next one's run.
afterEach(() => void send('tessary-end'));

test('the window may close without a question until there is unsaved work', async () => {
  const store = await loadPage();
  expect(send('tessary-close')).toBeNull();
  store.getState().addSheet();
  expect(send('tessary-close')).toEqual({
    title: 'Unsaved Changes',
    text: 'You have unsaved changes. Do you want to discard them?',
    discard: 'Discard',
    cancel: 'Cancel',
  });
  store.getState().updateWordsDocumentFileState({ name: 'a', path: '/a' });
  expect(send('tessary-close')).toBeNull();
});

test('unsaved work is handed over when it has changed, and when all of it is wanted', async () => {
  const store = await loadPage();
  expect(send('tessary-work')).toEqual({ state: 'none' });
  const { id } = store.getState().addSheet();
  const text = () => store.getState().getWordsDocument().toFileData();
  expect(send('tessary-work')).toEqual({ state: 'changed', name: 'Untitled.words.tessary', text: text() });
  expect(send('tessary-work')).toEqual({ state: 'same' });
  store.getState().updateSheet(id, { focusedBlock: ['integer', 32, 1] });
  expect(send('tessary-work')).toEqual({ state: 'same' });
  expect(send('tessary-work', { whole: true })).toMatchObject({ state: 'changed', text: text() });
  store.getState().updateSheet(id, { int: 5n });
  expect(send('tessary-work')).toMatchObject({ state: 'changed', text: expect.stringContaining('0x5') });
  store.getState().updateWordsDocumentFileState({ name: 'a', path: '/a' });
  expect(send('tessary-work')).toEqual({ state: 'none' });
});

test('the title is marked while there is unsaved work', async () => {
  const store = await loadPage();
  expect(document.title).toBe('Tessary');
  const { id } = store.getState().addSheet();
  expect(document.title).toBe('Tessary*');
  store.getState().updateWordsDocumentFileState({ name: 'a', path: '/a' });
  expect(document.title).toBe('Tessary');
  store.getState().updateSheet(id, { int: 5n });
  expect(document.title).toBe('Tessary*');
});

test('when the window ends, the page keeps nothing, whatever changes afterwards', async () => {
  const store = await loadPage();
  store.getState().addSheet();
  await vi.waitFor(() => expect(localStorage.getItem(KEY)).not.toBeNull());
  localStorage.setItem('joy-mode', 'dark');
  expect(send('tessary-end')).toBeNull();
  store.getState().addSheet();
  window.dispatchEvent(new Event('pagehide'));
  expect(localStorage.length).toBe(0);
});

test("a record of another run of the host is removed; a reload's own is restored", async () => {
  const before = await loadPage();
  before.getState().addSheet();
  await vi.waitFor(() => expect(localStorage.getItem(KEY)).not.toBeNull());
  expect((await loadPage()).getState().sheets.size).toBe(1);

  sessionStorage.removeItem(BEGUN);
  expect((await loadPage()).getState().sheets.size).toBe(0);
  await vi.waitFor(() => expect(localStorage.getItem(KEY)).toBeNull());
});

test('what another run of the host left is removed before something is written', async () => {
  localStorage.setItem(`${KEY}-set-aside`, 'of another run');
  const store = await loadPage();
  store.getState().addSheet();
  store.getState().persistState();
  expect({ ...localStorage }).toEqual({ [KEY]: expect.stringContaining('Number A') });
});
