import { execFileSync } from 'node:child_process';
import { documentText } from '../support/shared/documents';
import { expect, ownWindowTest as test } from '../support/vscode/fixtures';

const NAME = 'numbers.words.tessary';

/** Makes a repository of a folder, with all files in its first commit. */
function commitAll(folder: string): void {
  const author = ['-c', 'user.name=Tests', '-c', 'user.email=tests@localhost'];
  const env = { ...process.env, GIT_CONFIG_GLOBAL: '/dev/null', GIT_CONFIG_SYSTEM: '/dev/null' };
  for (const step of [['init'], ['add', '.'], [...author, 'commit', '--message', 'First']])
    execFileSync('git', step, { cwd: folder, env, stdio: 'pipe' });
}

test('in a repository changes are shown as texts, and the document of the last commit refuses edits', async ({
  editor,
  page,
}) => {
  editor.set({ 'git.enabled': true });
  editor.write(NAME, documentText({ int: '0xff' }));
  commitAll(editor.folder);
  const changed = documentText({ int: '0xf0' });
  await editor.enter();
  await editor.openWords(NAME, changed);
  await page.getByRole('button', { name: 'Open Changes' }).click();
  for (const [side, line] of Object.entries({ original: '"int": "0xff"', modified: '"int": "0xf0"' }))
    await expect(page.locator(`.editor.${side} .view-line`).filter({ hasText: line })).toBeVisible();
  await editor.run('View: Close All Editors');

  await page.keyboard.press('Control+Shift+G');
  await editor.runFromMenu(page.getByRole('treeitem', { name: NAME }), 'Open File (HEAD)');
  const view = editor.words();
  await expect(view.value()).toHaveValue('255');
  await view.enter('7');
  await expect(editor.notice(`${NAME} is read-only. Nothing was changed.`)).toBeVisible();
  await expect(view.value()).toHaveValue('255');
  await editor.expectDirty(NAME, false);
  expect(editor.read(NAME)).toBe(changed);
});
