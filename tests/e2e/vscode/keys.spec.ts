import { documentText } from '../support/shared/documents';
import { expect, test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

test('undo in an altered field is the field\u2019s', async ({ editor, page }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  await view.enter('1');
  await editor.expectDirty(NAME, true);
  await view.value().press('End');
  await page.keyboard.type('23');
  await expect(view.value()).toHaveValue('123');
  await page.keyboard.press('Control+Z');
  await expect(view.value()).toHaveValue(/^12?$/);
  await editor.expectDirty(NAME, true);
});

test('the page runs no code that its policy does not name', async ({ editor }) => {
  const view = await editor.openWords(NAME, documentText({ int: '0xff' }));
  const refused = await view.body.evaluate(
    () =>
      new Promise<string>((resolve) => {
        document.addEventListener('securitypolicyviolation', ({ effectiveDirective }) => resolve(effectiveDirective));
        document.head.append(Object.assign(document.createElement('script'), { textContent: '1' }));
      }),
  );
  expect(refused).toMatch(/^script-src/);
});
