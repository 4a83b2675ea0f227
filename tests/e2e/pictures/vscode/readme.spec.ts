import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { root, sampleDocument } from '../../support/shared/paths';
import { test } from '../../support/vscode/fixtures';

test('the picture of the extension: a document in the editor', async ({ editor, page }) => {
  await page.setViewportSize({ width: 1000, height: 620 });
  const view = await editor.openWords('sample.words.tessary', readFileSync(sampleDocument, 'utf8'));
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
