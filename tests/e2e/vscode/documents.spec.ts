import { documentText } from '../support/shared/documents';
import { expect, test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

test('a document opens in the Words editor by its name', async ({ editor }) => {
  const view = await editor.openWords(NAME, documentText({ displayName: 'First', int: '0xff' }));
  await expect(view.sheets).toHaveText(['First']);
  await expect(view.value()).toHaveValue('255');
  await editor.expectDirty(NAME, false);
});

test('an edit marks the tab, and a save right after it has it', async ({ editor, page }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await page.keyboard.press('Control+S');
  await expect.poll(() => editor.read(NAME)).toContain('"int": "0xfe"');
  await editor.expectDirty(NAME, false);
});

test('undo and redo are those of the editor', async ({ editor, page }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('1');
  await editor.expectDirty(NAME, true);
  await page.keyboard.press('Control+Z');
  await expect(view.value()).toHaveValue('255');
  await editor.expectDirty(NAME, false);
  await page.keyboard.press('Control+Shift+Z');
  await expect(view.value()).toHaveValue('1');
});

test('two documents are compared as texts, and nothing is written', async ({ editor, page }) => {
  const texts = { [NAME]: documentText({ int: '0xff' }), 'other.words.tessary': documentText({ int: '0xf0' }) };
  for (const [name, text] of Object.entries(texts)) editor.write(name, text);
  await editor.open(NAME);
  await editor.runFromMenu(page.getByRole('treeitem', { name: NAME }), 'Select for Compare');
  await editor.runFromMenu(page.getByRole('treeitem', { name: 'other.words.tessary' }), 'Compare with Selected');
  await expect(page.locator('.diffOverview')).toBeVisible();
  for (const [side, line] of Object.entries({ original: '"int": "0xff"', modified: '"int": "0xf0"' }))
    await expect(page.locator(`.editor.${side} .view-line`).filter({ hasText: line })).toBeVisible();
  for (const [name, text] of Object.entries(texts)) expect(editor.read(name)).toBe(text);
});
