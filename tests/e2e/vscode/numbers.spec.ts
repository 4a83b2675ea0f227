import { expect, test } from '../support/vscode/fixtures';

const SOURCE = 'uint32_t mask =\n0xdeadbeef;\nuint8_t key[] = {0x01, 0x02, 0x03, 0x04};\n';

test('a selected list of bytes opens in the order that is chosen', async ({ editor, page }) => {
  editor.write('a.c', SOURCE);
  await editor.enter();
  await editor.open('a.c');
  await page.locator('.view-line').filter({ hasText: 'key' }).click({ clickCount: 3 });
  await editor.run('Tessary: Show Selection as Words');
  await page
    .getByRole('option', { name: /most significant last/ })
    .first()
    .click();
  await expect(editor.words().value(32)).toHaveValue(String(0x04030201));
});
