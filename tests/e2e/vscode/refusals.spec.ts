import { documentText } from '../support/shared/documents';
import { expect, test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';
const MERGE = '{\n<<<<<<< ours\n  "a": 1\n=======\n  "a": 2\n>>>>>>> theirs\n}\n';

for (const { what, text, told } of [
  { what: 'the marks of a merge', text: MERGE, told: 'holds the marks of an unresolved merge' },
  { what: 'nothing', text: '', told: 'is empty' },
  { what: 'other JSON', text: '{"a": 1}\n', told: 'is JSON, but not a Words document' },
]) {
  test(`a file with ${what} is told, opens as text and stays as it is`, async ({ editor, page }) => {
    editor.write(NAME, text);
    await editor.open(NAME);
    await editor.notice(told).getByRole('button', { name: 'Open as Text' }).click();
    await expect(page.locator('.editor-instance .monaco-editor')).toBeVisible();
    expect(editor.read(NAME)).toBe(text);
  });
}

test('a file that turns invalid under an open editor is never overwritten', async ({ editor }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await editor.watchesFolder();
  editor.write(NAME, MERGE);
  await expect(editor.notice('holds the marks of an unresolved merge')).toBeVisible();
  await expect(view.frame.getByRole('alert')).toBeVisible();
  expect(editor.read(NAME)).toBe(MERGE);
  editor.write(NAME, documentText({ int: '0x7' }));
  await expect(view.value()).toHaveValue('7');
});
