import { expect, test } from '../support/vscode/fixtures';

const SOURCE = 'uint32_t mask =\n0xdeadbeef;\nuint8_t key[] = {0x01, 0x02, 0x03, 0x04};\n';

test('a literal at the cursor opens as a new document', async ({ editor, page }) => {
  editor.write('a.c', SOURCE);
  await editor.open('a.c');
  await page.locator('.view-line').getByText('0xdeadbeef').click();
  await editor.run('Tessary: Show Selection as Words');
  await expect(editor.words().value(32)).toHaveValue('3735928559');
});

test('a selected list of bytes opens in the order that is chosen', async ({ editor, page }) => {
  editor.write('a.c', SOURCE);
  await editor.open('a.c');
  await page.locator('.view-line').filter({ hasText: 'key' }).click({ clickCount: 3 });
  await editor.run('Tessary: Show Selection as Words');
  await page
    .getByRole('option', { name: /most significant last/ })
    .first()
    .click();
  await expect(editor.words().value(32)).toHaveValue(String(0x04030201));
});

test('a long number shows what it is, with a link to open it', async ({ editor, page }) => {
  editor.write('a.c', SOURCE);
  await editor.open('a.c');
  await page.locator('.view-line').getByText('0xdeadbeef').hover();
  const hover = page.locator('.monaco-hover').filter({ hasText: 'Hexadecimal' });
  await expect(hover).toContainText('3_735_928_559');
  await hover.getByText('Show as Words').click();
  await expect(editor.words().value(32)).toHaveValue('3735928559');
});

test('the menu of the right button opens what is selected', async ({ editor, page }) => {
  editor.write('a.c', SOURCE);
  await editor.open('a.c');
  await page.locator('.view-line').getByText('0xdeadbeef').dblclick();
  await editor.runFromMenu(page.locator('.view-line').getByText('0xdeadbeef'), 'Show Selection as Words');
  await expect(editor.words().sheets).toHaveText(['0xdeadbeef']);
  await expect(editor.words().value(32)).toHaveValue('3735928559');
});

test('a new document has one sheet, and is not on the disk yet', async ({ editor }) => {
  await editor.run('Tessary: New Words Document');
  await expect(editor.words().value()).toHaveValue('0');
  await editor.words().enter('5');
  await editor.expectDirty('Untitled-1', true);
});
