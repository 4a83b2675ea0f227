import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { documentText } from '../support/shared/documents';
import { EditorWindow } from '../support/vscode/editorWindow';
import { expect, test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

test('two editors that are typed into in quick turn end with the same document, and so does the file', async ({
  editor,
  page,
}) => {
  const view = await editor.openWords(NAME, documentText({ int: '0x0' }));
  await editor.run('View: Split Editor Right');
  const other = editor.words(1);
  await expect(other.value()).toHaveValue('0');
  for (const text of ['11', '33', '55']) {
    await view.enter(text);
    await other.enter(String(Number(text) + 11));
  }
  // A document may arrive between the digits of a number, so this is about where all end, not about which number it is.
  await expect(async () => {
    await page.keyboard.press('Control+S');
    await editor.expectDirty(NAME, false);
    const saved = /^\{\n {2}"tool": "words",\n[^]*"int": "(.*)"[^]*\n\}$/.exec(editor.read(NAME))?.[1];
    const shown = [await view.value().inputValue(), await other.value().inputValue()];
    expect(shown).toEqual(Array(2).fill(String(BigInt(saved ?? -1))));
  }).toPass();
});

test('two windows on a folder: a save in one is shown in the other, and overwritten by no older text unasked', async ({
  editor,
  context,
}) => {
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
  const view = await editor.openWords(NAME, text);
  await view.enter('254', 1024);
  await page.keyboard.press('Control+S');
  await editor.enter();
  await editor.bringBack(NAME);
  await editor.words().shown();
  const saved = text.replace(sheets[0]!.int, '0xfe');
  await expect.poll(() => [text, saved].includes(editor.read(NAME))).toBe(true);
});

test('a tab that is closed while its page loads opens again', async ({ editor, page }) => {
  editor.write(NAME, documentText({ int: '0xff' }));
  await editor.enter();
  await editor.open(NAME);
  await editor.run('View: Close Editor');
  await expect(editor.tab(NAME)).toHaveCount(0);
  await editor.open(NAME);
  await expect(editor.words().value()).toHaveValue('255');
  await expect(page.locator('.notification-toast')).toHaveCount(0);
});

test('who wants documents as text has them as text, and the Words editor by its name', async ({ editor, page }) => {
  mkdirSync(join(editor.folder, '.vscode'));
  editor.write('.vscode/settings.json', JSON.stringify({ 'workbench.editorAssociations': { '*.tessary': 'default' } }));
  editor.write(NAME, documentText({ int: '0xff' }));
  await editor.enter();
  await editor.open(NAME);
  await expect(page.locator('.editor-instance .monaco-editor')).toBeVisible();
  await editor.run('View: Reopen Editor With...');
  await page.getByRole('option', { name: /^Tessary Words/ }).click();
  await expect(editor.words().value()).toHaveValue('255');
});
