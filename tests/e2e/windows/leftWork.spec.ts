import { readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';
import { click } from '../support/windows/click';
import { expect, test, type WindowsSandbox } from '../support/windows/fixtures';
import { noNotice, noticeSays } from '../support/windows/notice';
import type { WindowsProgram } from '../support/windows/windowsProgram';

/** Where the notice of one copy has its button "Delete". */
const DELETE = { x: 335, y: 103 };
const COPY = 'mine (unsaved).words.tessary';

function copies(sandbox: WindowsSandbox): string[] {
  const folder = sandbox.rescueFolder();
  return folder ? readdirSync(folder).filter((name) => name.endsWith('.words.tessary')) : [];
}

async function openChanged(open: (args: string[]) => Promise<WindowsProgram>, sandbox: WindowsSandbox) {
  sandbox.write('mine.words.tessary', documentText({ displayName: 'Mine' }));
  const program = await open(['mine.words.tessary']);
  await program.shows('Mine');
  await click(program, 'Add sheet');
  await program.shows('mine.words.tessary*');
  return program;
}

const sheetsOf = (sandbox: WindowsSandbox, name: string) =>
  (
    JSON.parse(readFileSync(join(sandbox.rescueFolder() ?? '', name), 'utf8')) as { sheets: { displayName: string }[] }
  ).sheets.map(({ displayName }) => displayName);

test('a killed program leaves its work, which the next start offers and deletes when asked', async ({
  open,
  sandbox,
}) => {
  const killed = await openChanged(open, sandbox);
  await until('the copy', () => copies(sandbox).includes(COPY));
  expect(sheetsOf(sandbox, COPY)).toEqual(['Mine', 'Number A']);
  await killed.process.end();

  const next = await open();
  await next.shows('Open Words Tool');
  const notice = await noticeSays(next, 'Unsaved work of an earlier run was kept', `${COPY}, 20`);
  const texts = next.controls(notice.title).map(({ text }) => text);
  expect(texts).toEqual(expect.arrayContaining(['Open', 'Show folder', 'Delete', 'Close']));
  expect(copies(sandbox)).toEqual([COPY]);
  next.desktop.click(notice, DELETE);
  await until('the copy to go', () => copies(sandbox).length === 0);
  await noNotice(next);
});

test('a page without unsaved work is not asked, and one with it is', async ({ open, sandbox }) => {
  sandbox.write('mine.words.tessary', documentText({ displayName: 'Mine' }));
  const program = await open(['mine.words.tessary']);
  await program.shows('Mine');
  const questions = () => program.runtime.texts('evaluate').filter((script) => script.includes('tessary-work')).length;
  // Questions come every ten seconds: two of them are missing by then.
  const quiet = performance.now();
  await until('twice that time', () => performance.now() - quiet > 21_000);
  expect(questions()).toBe(0);
  await click(program, 'Add sheet');
  await until('the copy', () => copies(sandbox).includes(COPY));
  expect(questions()).toBe(1);
});

test('the end of the session keeps the work of this moment; a saved document leaves nothing', async ({
  open,
  sandbox,
}) => {
  const program = await openChanged(open, sandbox);
  program.runtime.endSession();
  expect(await program.process.exit()).toBe(0);
  expect(sheetsOf(sandbox, COPY)).toEqual(['Mine', 'Number A']);

  const second = await openChanged(open, sandbox);
  await until('the second copy', () => copies(sandbox).length === 2);
  await click(second, 'Save');
  await until('the second copy to go', () => copies(sandbox).length === 1);
  expect(copies(sandbox)).toEqual([COPY]);
});
