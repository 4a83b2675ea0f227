import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { root, sampleDocument } from '../../support/shared/paths';
import { expect, ownWindowTest as test } from '../../support/vscode/fixtures';

test('the picture of the extension: a document in the editor', async ({ editor, page }) => {
  await page.setViewportSize({ width: 1000, height: 620 });
  // What names the folder of this run and says nothing of the document.
  editor.set({ 'window.commandCenter': false, 'window.title': 'Tessary' });
  await editor.enter();
  const view = await editor.openWords('sample.words.tessary', readFileSync(sampleDocument, 'utf8'));
  await editor.run('View: Close Primary Side Bar');
  await expect(page.locator('.part.sidebar')).toBeHidden();
  await view.sheets.filter({ hasText: 'Pi as a double' }).click();
  await view.value().hover();
  const file = `${root}packaging/vscode/words.png`;
  await page.screenshot({ path: file, animations: 'disabled' });
  // The package is small: so few colors are in use that a palette holds them.
  execFileSync('convert', [
    file,
    '+dither',
    '-colors',
    '128',
    '-define',
    'png:exclude-chunks=date,time',
    `png8:${file}`,
  ]);
});
