import { mkdirSync, renameSync, rmSync } from 'node:fs';
import { join } from 'node:path';
import { documentText } from '../support/shared/documents';
import { expect, test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

test('a new document is saved under the name that is given', async ({ editor, page }) => {
  await editor.run('Tessary: New Words Document');
  await editor.words().enter('5');
  await page.keyboard.press('Control+S');
  const place = page.locator('.quick-input-widget input').first();
  await expect(place).toHaveValue(/Untitled-1\.words\.tessary$/);
  await place.fill(join(editor.folder, NAME));
  await expect(page.locator('.quick-input-list').getByRole('option')).toHaveCount(1); // nothing is in the story's folder
  await place.press('Enter');
  await expect.poll(() => editor.read(NAME)).toContain('"int": "0x5"');
  await editor.expectDirty(NAME, false);
  await expect(editor.words().value()).toHaveValue('5');
});

test('reverting brings back what is on the disk', async ({ editor }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await editor.expectDirty(NAME, true);
  await editor.run('File: Revert File');
  await expect(view.value()).toHaveValue('255');
  await editor.expectDirty(NAME, false);
});

test('a save that fails loses nothing', async ({ editor, page }) => {
  const folder = join(editor.folder, 'data');
  mkdirSync(folder);
  editor.write(`data/${NAME}`, documentText({ int: '0xff' }));
  await editor.open(`data/${NAME}`);
  const view = editor.words();
  await view.shown();
  await view.enter('254');
  await editor.expectDirty(NAME, true);
  renameSync(folder, `${folder}.away`);
  editor.write('data', 'no folder');
  await page.keyboard.press('Control+S');
  await expect(editor.notice(`Failed to save '${NAME}'`)).toBeVisible();
  await expect(view.value()).toHaveValue('254');
  await editor.expectDirty(NAME, true);
  rmSync(folder);
  renameSync(`${folder}.away`, folder);
  await editor.notice(`Failed to save '${NAME}'`).getByRole('button', { name: 'Retry' }).click();
  await expect.poll(() => editor.read(`data/${NAME}`)).toContain('"int": "0xfe"');
  await editor.expectDirty(NAME, false);
});

test('a file that is deleted under its editor keeps its unsaved edit, and a save brings it back', async ({
  editor,
}) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await editor.expectDirty(NAME, true);
  await editor.watchesFolder();
  rmSync(join(editor.folder, NAME));
  await expect(editor.tab(NAME).locator('.strikethrough')).toBeVisible();
  await expect(view.value()).toHaveValue('254');
  await view.value().press('Control+S');
  await expect.poll(() => editor.read(NAME)).toContain('"int": "0xfe"');
  await editor.expectDirty(NAME, false);
});

test('a file that is renamed in the editor keeps its editor and its unsaved edit', async ({ editor, page }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await editor.expectDirty(NAME, true);
  await page.getByRole('treeitem', { name: NAME }).click();
  await page.keyboard.press('F2');
  await page.locator('.explorer-item-edited input').fill('other.words.tessary');
  await page.keyboard.press('Enter');
  await editor.expectDirty('other.words.tessary', true);
  await expect(editor.words().value()).toHaveValue('254');
  await editor.words().value().press('Control+S');
  await expect.poll(() => editor.read('other.words.tessary')).toContain('"int": "0xfe"');
});

test('a document of 5 MB can be edited, and one line of it changes', async ({ editor, page }) => {
  test.setTimeout(240_000);
  const int = `0x${'f'.repeat(256)}`;
  const sheets = Array.from({ length: 4000 }, (_, at) => ({
    id: `s${at}`,
    displayName: `Sheet ${at}`,
    int,
    intResolution: 1024,
  }));
  const text = documentText(...sheets);
  expect(text.length).toBeGreaterThan(5e6);
  const view = await editor.openWords(NAME, text);
  await view.enter('254', 1024);
  await page.keyboard.press('Control+S');
  const saved = text.replace(int, '0xfe');
  await expect.poll(() => editor.read(NAME) === saved, { timeout: 60_000 }).toBe(true); // listing differences takes minutes
});
