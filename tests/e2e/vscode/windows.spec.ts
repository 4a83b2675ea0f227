import { readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { documentText } from '../support/shared/documents';
import { EditorWindow } from '../support/vscode/editorWindow';
import { expect, ownWindowTest as test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

/** Whether the editor has kept a copy of an unsaved file of a folder below its home, where other windows' copies are as well. */
function hasBackup(home: string, folder: string, part: string): boolean {
  return readdirSync(home, { recursive: true, withFileTypes: true })
    .filter((entry) => entry.isFile() && entry.parentPath.includes('/Backups/'))
    .map(({ parentPath, name }) => readFileSync(join(parentPath, name), 'utf8'))
    .some((text) => text.split('\n')[0]!.includes(folder) && text.includes(part));
}

test('the first window after the installation shows the document that it begins with in the Words editor', async ({
  editor,
}) => {
  editor.write(NAME, documentText({ int: '0xff' }));
  await editor.enter(editor.addressWith(NAME));
  await expect(editor.words().value()).toHaveValue('255');
  await expect(editor.tab(NAME)).toHaveCount(1);
  await editor.expectDirty(NAME, false);
});

test('a reload of the window keeps unsaved changes', async ({ editor, page, server }) => {
  await editor.enter();
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await editor.expectDirty(NAME, true);
  await expect.poll(() => hasBackup(server.home, editor.folder, '"int": "0xfe"')).toBe(true);
  await editor.remembers(NAME);
  await page.reload();
  await expect(editor.words().value()).toHaveValue('254');
  await editor.expectDirty(NAME, true);
  expect(editor.read(NAME)).toContain('"int": "0xff"');
  await editor.words().value().focus();
  await page.keyboard.press('Control+S');
  await expect.poll(() => editor.read(NAME)).toContain('"int": "0xfe"');
});

test('two windows on a folder: a save in one is shown in the other, and overwritten by no older text unasked', async ({
  editor,
  context,
}) => {
  await editor.enter();
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  const second = new EditorWindow(await context.newPage(), editor.folder, editor.address);
  await second.enter();
  await second.open(NAME);
  await editor.watchesFolder();
  await second.watchesFolder();
  await view.enter('254');
  await view.value().press('Control+S');
  await expect.poll(() => editor.read(NAME)).toContain('"0xfe"');
  await expect(second.words().value()).toHaveValue('254');
  await second.expectDirty(NAME, false);
  await second.words().enter('7');
  await second.expectDirty(NAME, true);
  await view.enter('65535'); // of another length, by which the editor knows it
  await view.value().press('Control+S');
  await expect.poll(() => editor.read(NAME)).toContain('"0xffff"');
  await second.words().value().press('Control+S');
  await expect(second.notice('The content of the file is newer')).toBeVisible();
  await expect(second.words().value()).toHaveValue('7');
  expect(editor.read(NAME)).toContain('"0xffff"');
});

test('a window that is loaded again in the midst of a save leaves a whole document', async ({ editor, page }) => {
  const sheets = Array.from({ length: 1000 }, (_, at) => ({
    id: `s${at}`,
    displayName: `Sheet ${at}`,
    int: `0x${'f'.repeat(256)}`,
    intResolution: 1024,
  }));
  const text = documentText(...sheets);
  await editor.enter();
  const view = await editor.openWords(NAME, text);
  await view.enter('254', 1024);
  await page.keyboard.press('Control+S');
  await editor.enter();
  await editor.bringBack(NAME);
  await editor.words().shown();
  const saved = text.replace(sheets[0]!.int, '0xfe');
  await expect.poll(() => [text, saved].includes(editor.read(NAME))).toBe(true);
});
