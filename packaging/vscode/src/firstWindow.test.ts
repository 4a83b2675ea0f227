import { beforeEach, expect, test, vi } from 'vitest';
import type { Memento } from 'vscode';
import { tabGroups, TabInputText } from './fakeEditor';
import { showFirstDocuments } from './firstWindow';

const { executeCommand, associations } = vi.hoisted(() => ({ executeCommand: vi.fn(), associations: vi.fn() }));
vi.mock('vscode', async () => {
  const fake = await import('./fakeEditor');
  return {
    ...fake,
    commands: { executeCommand },
    workspace: { getConfiguration: () => ({ get: associations }) },
  };
});

let memory: Memento;

/** Opens texts as tabs of one group. */
function openTexts(...tabs: { path: string; isActive?: boolean; isDirty?: boolean }[]): void {
  const group: (typeof tabGroups.all)[number] = { viewColumn: 1, isActive: true, tabs: [] };
  group.tabs = tabs.map(({ path, ...more }) => ({
    input: new TabInputText({ path }),
    group,
    isActive: false,
    isDirty: false,
    ...more,
  }));
  tabGroups.all = [group];
}

const opened = () => executeCommand.mock.calls.map(([, { path }]) => path);
const left = () => tabGroups.all[0]!.tabs.map(({ input }) => (input as TabInputText).uri.path);

beforeEach(() => {
  const kept = new Map<string, unknown>();
  memory = {
    keys: () => [...kept.keys()],
    get: (key: string) => kept.get(key),
    update: (key: string, value: unknown) => Promise.resolve(void kept.set(key, value)),
  };
  executeCommand.mockReset();
  associations.mockReturnValue({});
});

test('documents of the first window are shown as words, with the one in front last; other texts stay', async () => {
  openTexts({ path: '/a.tessary', isActive: true }, { path: '/b.tessary' }, { path: '/c.txt' });
  await showFirstDocuments(memory, 'words');
  expect(opened()).toEqual(['/b.tessary', '/a.tessary']);
  expect(left()).toEqual(['/c.txt']);
});

test('an edited text stays a text', async () => {
  openTexts({ path: '/a.tessary', isDirty: true });
  await showFirstDocuments(memory, 'words');
  expect(opened()).toEqual([]);
  expect(left()).toEqual(['/a.tessary']);
});

test('a document that is opened as text later stays one', async () => {
  openTexts();
  await showFirstDocuments(memory, 'words');
  openTexts({ path: '/a.tessary' });
  await showFirstDocuments(memory, 'words');
  expect(opened()).toEqual([]);
});

test('settings that say how documents are opened hold', async () => {
  associations.mockReturnValue({ '*.tessary': 'default' });
  openTexts({ path: '/a.tessary' });
  await showFirstDocuments(memory, 'words');
  expect(opened()).toEqual([]);
});

test('a text that the editor has replaced itself is not closed again', async () => {
  openTexts({ path: '/a.tessary' }, { path: '/b.tessary' });
  executeCommand.mockImplementation((_, uri: { path: string }) => {
    const others = left().filter((path) => path !== uri.path);
    openTexts(...others.map((path) => ({ path })));
  });
  await showFirstDocuments(memory, 'words');
  expect(left()).toEqual([]);
});
