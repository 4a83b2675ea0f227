// @vitest-environment jsdom
import { cleanup, screen, within } from '@testing-library/react';
import { afterEach, beforeEach, describe, expect, test, vi } from 'vitest';
import { PageRouter } from '../app/PageRouter';
import { useSheetsStore } from '../stores/sheetsStore';
import { documentText, sheetData } from '../testing/documents';
import { renderPage, renderPageWith } from '../testing/renderPage';

const PATH = 'C:\\dir\\a.words.tessary';

/** Renders the start page as a native host with these launch arguments and this read function would have it. */
function start(args: NonNullable<Window['tessary']>['args'] | undefined, readFile?: Window['readFile']) {
  window.tessary = { ...(args && { args }) };
  if (readFile) window.readFile = readFile;
  return renderPage('/');
}
const welcome = () => screen.findByRole('heading', { level: 1, name: 'Tessary' });

beforeEach(() => useSheetsStore.getState().reset());
afterEach(() => {
  cleanup();
  delete window.tessary;
  delete window.readFile;
  history.replaceState(null, '', '/');
  vi.restoreAllMocks();
});

describe('the start page', () => {
  test.each([
    ['without launch arguments', undefined],
    ['when the host names no file', { error: null, filePath: null }],
    ['when the host cannot read files', { error: null, filePath: PATH }],
  ])('welcomes the user %s', async (_, args) => {
    start(args);
    expect(await welcome()).toBeDefined();
    expect(screen.queryByRole('alert')).toBeNull();
  });

  test.each([
    ['without launch arguments', undefined],
    ['when the host names no file', { error: null, filePath: null }],
  ])('is the welcome page from its first frame on %s', (_, args) => {
    start(args);
    expect(screen.getByRole('heading', { level: 1, name: 'Tessary' })).toBeDefined();
  });

  test('shows why the host could not start and reads nothing', async () => {
    const readFile = vi.fn();
    start({ error: "File not found: it's {{app}} @(ui.new).tessary", filePath: PATH }, readFile);
    const alert = await screen.findByRole('alert');
    expect(alert.textContent).toBe("Failed to start Tessary: File not found: it's {{app}} @(ui.new).tessary");
    expect(readFile).not.toHaveBeenCalled();
    expect(screen.queryByRole('link', { name: 'Open Words Tool' })).toBeNull();
  });

  test.each([
    ['a failure with its code', { success: false, error: 'file-not-found' }, 'Failed to read file: file-not-found'],
    ['a failure without a code', { success: false }, 'Failed to read file: Unknown error'],
    ['an empty file', { success: true }, 'Failed to read file: Unknown error'],
    ['no JSON', { success: true, data: '{' }, 'Failed to parse document data: Invalid JSON'],
    [
      'another structure',
      { success: true, data: '{"tool":"words","version":0}' },
      'Invalid Tessary document data structure',
    ],
    [
      'bad sheets',
      { success: true, data: '{"tool":"words","version":1}' },
      'The provided document is not of a recognized format',
    ],
  ])('shows what is wrong with the file: %s', async (_, answer, message) => {
    start({ filePath: PATH }, async () => answer);
    expect((await screen.findByRole('alert')).textContent).toBe(message);
    expect(screen.getAllByRole('alert')).toHaveLength(1);
  });

  test('shows the message of an integer that cannot be read', async () => {
    const data = documentText({ sheets: [sheetData({ int: '0xZZ' })] });
    start({ filePath: PATH }, async () => ({ success: true, data }));
    expect((await screen.findByRole('alert')).textContent).toBe('Failed to read file: Cannot convert 0xZZ to a BigInt');
  });

  test('shows the reason of a read that was rejected, error or not', async () => {
    const reason: unknown = 'gone';
    // eslint-disable-next-line @typescript-eslint/prefer-promise-reject-errors -- what a host may do
    start({ filePath: PATH }, () => Promise.reject(reason));
    expect((await screen.findByRole('alert')).textContent).toBe('Failed to read file: gone');
  });

  test('which shows nothing yet, makes way for the document without time to fade', async () => {
    const setTimer = setTimeout;
    // No fade ever ends.
    const timers = vi
      .spyOn(globalThis, 'setTimeout')
      .mockImplementation(((act: () => void, delay = 0) =>
        delay > 20 && delay < 500 ? 0 : setTimer(act, delay)) as typeof setTimeout);
    const answer = { success: true, data: documentText({ sheets: [sheetData({ displayName: 'Mine' })] }) };
    start({ error: null, filePath: PATH }, async () => answer);
    expect(await screen.findByRole('tabpanel', { name: 'Mine' })).toBeDefined();
    timers.mockRestore();
  });

  test('makes way for the document before the next frame, however long the host read', async () => {
    const clock = vi.spyOn(performance, 'now').mockReturnValue(0);
    const data = documentText({ sheets: [sheetData({ displayName: 'Mine' })] });
    const answer = Promise.withResolvers<{ success: true; data: string }>();
    window.tessary = { args: { error: null, filePath: PATH } };
    window.readFile = vi.fn(() => answer.promise);
    renderPageWith(PageRouter);
    await vi.waitFor(() => expect(window.readFile).toHaveBeenCalled());
    clock.mockReturnValue(5000);
    answer.resolve({ success: true, data });
    // Frames come between tasks, and nothing here ends the one that this began in.
    for (let step = 0; step < 100 && !screen.queryByRole('tabpanel'); step++) await Promise.resolve();
    expect(screen.getByRole('tabpanel', { name: 'Mine' })).toBeDefined();
  });

  test('opens the file of the command line as saved and leads to the Words tool', async () => {
    const data = documentText({ sheets: [sheetData({ displayName: 'Mine', int: '0xff', intResolution: 32 })] });
    const readFile = vi.fn(async () => ({ success: true, data }));
    start({ error: null, filePath: PATH }, readFile);
    const sheet = within(await screen.findByRole('tabpanel', { name: 'Mine' }));
    const word = within(sheet.getByRole('group', { name: 'Int 32 word 1' }));
    expect(word.getByRole<HTMLInputElement>('textbox', { name: 'Base 16' }).value).toBe('FF');
    expect(readFile).toHaveBeenCalledExactlyOnceWith(PATH);
    expect(useSheetsStore.getState()).toMatchObject({
      documentFile: { name: 'a.words.tessary', path: PATH },
      isUnsaved: false,
    });
  });
});
