import { documentText } from '../support/shared/documents';
import { expect, ownWindowTest as test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

test('auto save writes an edit without being asked', async ({ editor }) => {
  editor.set({ 'files.autoSave': 'afterDelay' });
  await editor.enter();
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('254');
  await expect.poll(() => editor.read(NAME)).toContain('"int": "0xfe"');
});

test('in a light editor of high contrast the page keeps its own colors, from edge to edge', async ({
  editor,
  page,
}) => {
  editor.set({ 'workbench.colorTheme': 'Default High Contrast Light' });
  await editor.enter();
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await expect(page.locator('.monaco-workbench.hc-light')).toBeVisible();
  await expect(view.body).toHaveClass(/vscode-high-contrast-light/);
  await expect(view.body).toHaveCSS('background-color', 'rgb(15, 18, 20)');
  await expect(view.body).toHaveCSS('padding', '0px');
  const button = view.frame.getByRole('button', { name: 'Resolution' }).first();
  await expect(button).toHaveCSS('color', /^rgb\((1[5-9]|2\d)\d, /); // light, on its dark ground
});

test('who wants documents as text has them as text, and the Words editor by its name', async ({ editor, page }) => {
  editor.set({ 'workbench.editorAssociations': { '*.tessary': 'default' } });
  editor.write(NAME, documentText({ int: '0xff' }));
  await editor.enter(editor.addressWith(NAME));
  await expect(page.locator('.editor-instance .monaco-editor')).toBeVisible();
  await editor.run('View: Reopen Editor With...');
  await page.getByRole('option', { name: /^Tessary Words/ }).click();
  await expect(editor.words().value()).toHaveValue('255');
});
