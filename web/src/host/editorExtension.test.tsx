// @vitest-environment jsdom
import { cleanup, screen } from '@testing-library/react';
import { afterEach, beforeEach, describe, expect, test, vi } from 'vitest';
import { documentData, documentText, sheetData } from '../testing/documents';

const posted = vi.fn();

/** Loads the page as an editor extension shows it. */
async function loadPage() {
  vi.resetModules();
  const { renderPage } = await import('../testing/renderPage');
  const { useSheetsStore } = await import('../stores/sheetsStore');
  renderPage('/');
  return useSheetsStore;
}
const send = (data: unknown) => window.dispatchEvent(new CustomEvent('vscode-session-data', { detail: { data } }));
const updates = () => posted.mock.calls.map(([message]) => message).filter(({ type }) => type === 'updateDocument');

beforeEach(() => {
  posted.mockClear();
  vi.stubGlobal('acquireVsCodeApi', () => ({ postMessage: posted, getState: () => ({}), setState: vi.fn() }));
});
afterEach(() => {
  cleanup();
  vi.useRealTimers();
  vi.unstubAllGlobals();
});

describe('in an editor extension', () => {
  test('the page says that it is ready, shows no rail and ignores launch arguments', async () => {
    window.tessary = { args: { error: 'ignored' } };
    await loadPage();
    expect(posted).toHaveBeenCalledExactlyOnceWith({ type: 'ready' });
    expect(screen.queryByRole('navigation')).toBeNull();
    expect(screen.queryByText(/ignored/)).toBeNull();
    delete window.tessary;
  });

  test.each([
    ['an object', documentData({ sheets: [sheetData({ displayName: 'Sent' })] })],
    ['a text', documentText({ sheets: [sheetData({ displayName: 'Sent' })] })],
    ['raw content', { rawContent: documentText({ sheets: [sheetData({ displayName: 'Sent' })] }) }],
    [
      'an object beside empty raw content',
      { rawContent: '', ...documentData({ sheets: [sheetData({ displayName: 'Sent' })] }) },
    ],
  ])('shows a document sent as %s', async (_, data) => {
    const store = await loadPage();
    send(data);
    await vi.waitFor(() => expect([...store.getState().sheets.values()][0]?.displayName).toBe('Sent'));
  });

  test('of two documents sent at once the later one stays', async () => {
    const store = await loadPage();
    send(documentData());
    send(documentData({ sheets: [] }));
    send(documentData({ sheets: [sheetData({ id: 'last' })] }));
    await vi.waitFor(() => expect([...store.getState().sheets.keys()]).toEqual(['last']));
  });

  test('what is no document is reported and changes nothing', async () => {
    const store = await loadPage();
    send(documentData());
    await vi.waitFor(() => expect(store.getState().sheets.size).toBe(1));
    send('{');
    send(null);
    send(documentData({ sheets: [sheetData({ int: '0xZZ' })] }));
    expect(await screen.findByText('An error occurred while opening the file')).toBeDefined();
    expect(screen.getByText('Failed to parse document data: Invalid JSON')).toBeDefined();
    expect(screen.getByText('Invalid Tessary document data structure')).toBeDefined();
    expect(store.getState().sheets.size).toBe(1);
  });

  test('edits are posted once, 300 ms after the last of them, and leave no unsaved mark', async () => {
    const store = await loadPage();
    vi.useFakeTimers();
    const { id } = store.getState().addSheet();
    vi.advanceTimersByTime(299);
    store.getState().updateSheet(id, { int: 5n });
    vi.advanceTimersByTime(299);
    expect(updates()).toEqual([]);
    vi.advanceTimersByTime(1);
    expect(updates()).toEqual([{ type: 'updateDocument', data: store.getState().getWordsDocument().toData() }]);
    expect(updates()[0].data.sheets[0].int).toBe('0x5');
    expect(store.getState().isUnsaved).toBe(false);
  });

  test('focus and switches are not posted', async () => {
    const store = await loadPage();
    const { id } = store.getState().addSheet();
    vi.useFakeTimers();
    vi.advanceTimersByTime(1000);
    posted.mockClear();
    store.getState().updateSheet(id, { flagOptions: ['scroll-lock-horizontal'] });
    vi.advanceTimersByTime(1000);
    expect(updates()).toEqual([]);
  });

  test('a document from the editor drops a waiting update, and for 500 ms nothing is posted', async () => {
    const store = await loadPage();
    vi.useFakeTimers();
    store.getState().addSheet();
    await store.getState().loadWordsDocument(documentData({ sheets: [sheetData({ id: 'sent' })] }) as never);
    vi.advanceTimersByTime(499);
    store.getState().updateSheet('sent', { int: 1n });
    vi.advanceTimersByTime(400);
    expect(updates()).toEqual([]);
    store.getState().updateSheet('sent', { int: 2n });
    vi.advanceTimersByTime(300);
    expect(updates().map(({ data }) => data.sheets[0].int)).toEqual(['0x2']);
  });
});
