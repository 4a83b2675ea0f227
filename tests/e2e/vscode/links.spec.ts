import { documentText } from '../support/shared/documents';
import { expect, test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

test('a link to the web is opened by the editor, which asks first; another one is refused', async ({ editor }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.body.evaluate(() => window.openExternalUrl!('https://example.org/a?b=c#d'));
  await expect(editor.dialog()).toContainText('Do you want');
  await expect(editor.dialog()).toContainText('https://example.org/a?b=c#d');
  await editor.dialog().getByRole('button', { name: 'Cancel' }).click();
  await expect(editor.dialog()).toHaveCount(0);
  await view.body.evaluate(() => window.openExternalUrl!('file:///etc/passwd'));
  await expect(editor.notice('This link cannot be opened: file:///etc/passwd')).toBeVisible();
  await expect(editor.dialog()).toHaveCount(0);
});
