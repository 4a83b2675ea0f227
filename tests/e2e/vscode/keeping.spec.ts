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

test('a tab that is closed while its page loads opens again', async ({ editor, page }) => {
  editor.write(NAME, documentText({ int: '0xff' }));
  await editor.open(NAME);
  await editor.run('View: Close Editor');
  await expect(editor.tab(NAME)).toHaveCount(0);
  await editor.open(NAME);
  await expect(editor.words().value()).toHaveValue('255');
  await expect(page.locator('.notification-toast')).toHaveCount(0);
});
