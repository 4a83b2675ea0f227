import { mkdirSync, readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { documentText } from '../support/shared/documents';
import { expect, test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

test('closing right after an edit asks', async ({ editor, page }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await page.keyboard.press('Control+W');
  await expect(editor.dialog()).toContainText('Do you want to save the changes');
  await editor.dialog().getByRole('button', { name: 'Save', exact: true }).click();
  await expect.poll(() => editor.read(NAME)).toContain('"int": "0xfe"');
});

/** Whether the editor has kept a copy of an unsaved file of a folder below its home, where other windows' copies are as well. */
function hasBackup(home: string, folder: string, part: string): boolean {
  return readdirSync(home, { recursive: true, withFileTypes: true })
    .filter((entry) => entry.isFile() && entry.parentPath.includes('/Backups/'))
    .map(({ parentPath, name }) => readFileSync(join(parentPath, name), 'utf8'))
    .some((text) => text.split('\n')[0]!.includes(folder) && text.includes(part));
}

test('a reload of the window keeps unsaved changes', async ({ editor, page, server }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await editor.expectDirty(NAME, true);
  await expect.poll(() => hasBackup(server.home, editor.folder, '"int": "0xfe"')).toBe(true);
  await page.reload();
  await expect(editor.words().value()).toHaveValue('254');
  await editor.expectDirty(NAME, true);
  expect(editor.read(NAME)).toContain('"int": "0xff"');
  await editor.words().value().focus();
  await page.keyboard.press('Control+S');
  await expect.poll(() => editor.read(NAME)).toContain('"int": "0xfe"');
});

test('a change on the disk is shown', async ({ editor }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await editor.watchesFolder();
  editor.write(NAME, documentText({ int: '0x7' }));
  await expect(view.value()).toHaveValue('7');
  await editor.expectDirty(NAME, false);
});

test('two editors side by side show the same document', async ({ editor }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await editor.run('View: Split Editor Right');
  await expect(editor.words(1).value()).toHaveValue('255');
  await view.enter('7');
  await expect(editor.words(1).value()).toHaveValue('7');
  await editor.words(1).enter('8');
  await expect(view.value()).toHaveValue('8');
});

test('auto save writes an edit without being asked', async ({ editor }) => {
  mkdirSync(join(editor.folder, '.vscode'));
  editor.write('.vscode/settings.json', JSON.stringify({ 'files.autoSave': 'afterDelay' }));
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await expect.poll(() => editor.read(NAME)).toContain('"int": "0xfe"');
});

test('an edit in 1,000 sheets changes the line that holds it; byte order mark, line ends and the final break stay', async ({
  editor,
  page,
}) => {
  const sheets = Array.from({ length: 1000 }, (_, at) => ({ id: `s${at}`, displayName: `Sheet ${at}`, int: '0xff' }));
  const text = `\uFEFF${documentText(...sheets)}\n`.replaceAll('\n', '\r\n');
  const view = await editor.openWords(NAME, text);
  await view.enter('254');
  await page.keyboard.press('Control+S');
  const saved = text.replace('"int": "0xff"', '"int": "0xfe"');
  await expect.poll(() => editor.read(NAME) === saved).toBe(true); // listing the differences would take minutes
});
