// @vitest-environment jsdom
import { cleanup, screen } from '@testing-library/react';
import userEvent from '@testing-library/user-event';
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
const sent = documentData({ sheets: [sheetData({ id: 'sent' })] });
const updates = () => posted.mock.calls.map(([message]) => message).filter(({ type }) => type === 'updateDocument');
const values = () => updates().map(({ data }) => data.sheets[0].int);

beforeEach(() => {
  window.dispatchEvent(new Event('pagehide')); // what earlier tests left to be posted
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

  test('what is no document is reported in its place, and changes nothing', async () => {
    const store = await loadPage();
    for (const [data, text] of [
      ['{', 'Failed to parse document data: Invalid JSON'],
      [null, 'Invalid Tessary document data structure'],
      [documentData({ sheets: [sheetData({ int: '0xZZ' })] }), 'An error occurred while opening the file'],
    ] as const) {
      send(data);
      expect(await screen.findByText(text)).toBeDefined();
      expect(screen.getByRole('alert').textContent).toBe(text);
      expect(screen.queryByRole('tab')).toBeNull();
      send(documentData());
      expect(await screen.findByRole('tab', { name: 'Number A' })).toBeDefined();
      expect(screen.queryByRole('alert')).toBeNull();
      expect(store.getState().sheets.size).toBe(1);
    }
  });

  test('the page waits for a late document without showing anything', async () => {
    vi.useFakeTimers();
    await loadPage();
    await vi.advanceTimersByTimeAsync(5000);
    expect(screen.queryByRole('main')).toBeNull();
  });

  test('no document counts as unsaved, and a new one is begun without a question', async () => {
    const store = await loadPage();
    send(documentData({ sheets: [] }));
    await userEvent.click(await screen.findByText('Create Document'));
    expect(await screen.findByRole('tab', { name: 'Number A' })).toBeDefined();
    expect(store.getState().isUnsaved).toBe(false);
  });

  test('nothing offers to open a file, which only the editor can', async () => {
    await loadPage();
    send(documentData({ sheets: [] }));
    await screen.findByText('Create Document');
    expect(screen.queryByText('Open Document')).toBeNull();
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

  test('a document from the editor drops a waiting update, and what is edited within 500 ms is posted after them', async () => {
    const store = await loadPage();
    vi.useFakeTimers();
    store.getState().addSheet();
    await store.getState().loadWordsDocument(sent as never);
    vi.advanceTimersByTime(100);
    store.getState().updateSheet('sent', { int: 0xfen });
    vi.advanceTimersByTime(399);
    expect(updates()).toEqual([]);
    vi.advanceTimersByTime(1);
    expect(values()).toEqual(['0xfe']);
    vi.advanceTimersByTime(1000);
    expect(values()).toEqual(['0xfe']);
  });

  test('an edit made while the editor’s document is being read is not posted as an edit of that', async () => {
    const store = await loadPage();
    const { id } = store.getState().addSheet();
    window.dispatchEvent(new Event('blur'));
    posted.mockClear();
    send(sent);
    await Promise.resolve();
    store.getState().updateSheet(id, { int: 3n });
    for (const leaving of ['blur', 'pagehide']) window.dispatchEvent(new Event(leaving));
    await vi.waitFor(() => expect([...store.getState().sheets.keys()]).toEqual(['sent']));
    window.dispatchEvent(new Event('pagehide'));
    expect(updates()).toEqual([]);
  });

  test('a document without edits is not posted back', async () => {
    const store = await loadPage();
    vi.useFakeTimers();
    await store.getState().loadWordsDocument(sent as never);
    vi.advanceTimersByTime(2000);
    expect(updates()).toEqual([]);
  });

  test('an edit that waited outlives a document that cannot be loaded', async () => {
    const store = await loadPage();
    vi.useFakeTimers();
    const { id } = store.getState().addSheet();
    store.getState().updateSheet(id, { int: 7n });
    await expect(
      store.getState().loadWordsDocument(documentData({ sheets: [sheetData({ int: '0xZZ' })] }) as never),
    ).rejects.toThrow();
    vi.advanceTimersByTime(500);
    expect(values()).toEqual(['0x7']);
  });

  test.each([
    ['the view loses the focus', () => window.dispatchEvent(new Event('blur'))],
    ['the view is hidden', () => document.dispatchEvent(new Event('visibilitychange'))],
    [
      'a key of the editor is pressed',
      () => window.dispatchEvent(new KeyboardEvent('keydown', { ctrlKey: true, key: 's' })),
    ],
    ['the view goes', () => window.dispatchEvent(new Event('pagehide'))],
  ])('an edit is posted at once when %s', async (_, leave) => {
    const store = await loadPage();
    vi.useFakeTimers();
    const { id } = store.getState().addSheet();
    store.getState().updateSheet(id, { int: 3n });
    leave();
    expect(values()).toEqual(['0x3']);
    leave();
    vi.advanceTimersByTime(1000);
    expect(updates()).toHaveLength(1);
  });

  test('only the end of the view ends the rest after a document early', async () => {
    const store = await loadPage();
    vi.useFakeTimers();
    await store.getState().loadWordsDocument(sent as never);
    store.getState().updateSheet('sent', { int: 4n });
    window.dispatchEvent(new Event('blur'));
    expect(updates()).toEqual([]);
    window.dispatchEvent(new Event('pagehide'));
    expect(values()).toEqual(['0x4']);
  });

  test('its own text, sent back, leaves signs and focus as they are; another one resets them', async () => {
    const store = await loadPage();
    send(documentText());
    await vi.waitFor(() => expect(store.getState().sheets.size).toBe(1));
    const [id] = store.getState().sheets.keys();
    store.getState().updateSheet(id!, { int: 9n, signMap: new Map([['0:64', true]]), focusedBlock: ['integer', 8, 2] });
    await vi.waitFor(() => expect(updates()).toHaveLength(1));
    const own = updates()[0].data;
    const shown = store.getState().sheets;
    send({ rawContent: JSON.stringify(own, null, 4) });
    send({ rawContent: '{' });
    await screen.findByRole('alert');
    send({ rawContent: JSON.stringify(own) });
    await vi.waitFor(() => expect(screen.queryByRole('alert')).toBeNull());
    expect(store.getState().sheets).toBe(shown);

    send(documentData({ sheets: [{ ...own.sheets[0], int: '0x8' }] })); // undone in the editor
    await vi.waitFor(() => expect(store.getState().getActiveSheet()!.int).toBe(8n));
    expect(store.getState().getActiveSheet()!.signMap.size).toBe(0);
    send(own); // and made again
    await vi.waitFor(() => expect(store.getState().getActiveSheet()!.int).toBe(9n));
  });

  test('an edit that waits is posted, though what was posted before it comes back meanwhile', async () => {
    const store = await loadPage();
    vi.useFakeTimers();
    const { id } = store.getState().addSheet();
    await vi.advanceTimersByTimeAsync(300);
    store.getState().updateSheet(id, { int: 10n });
    send(updates()[0].data);
    await vi.advanceTimersByTimeAsync(300);
    expect(values()).toEqual(['0x0', '0xa']);
  });
});
