import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { FileDialog, MessageBox } from '../support/linux/dialog';
import { expect, test } from '../support/linux/fixtures';
import { barShows, enterValue, savedValues, shown } from '../support/linux/nativeDocument';
import { killPage, killPageProcess, pageProcess } from '../support/linux/pageProcess';
import type { Program } from '../support/linux/program';
import { untilReloaded } from '../support/linux/reload';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

const BACK = 'The page ended unexpectedly and was loaded again. Your sheets are back as they were.';

/** Waits until the page's record of its sheets holds this text. */
const recorded = (program: Program, text: string) =>
  until(`"${text}" in the record`, () =>
    program.page.evaluate(
      (wanted) => (localStorage.getItem('bits-sheets-storage') ?? '').replaceAll('\\', '').includes(wanted),
      text,
    ),
  );

const reload = (program: Program) =>
  untilReloaded(program, () =>
    program.page.evaluate(() => void setTimeout(() => location.reload())).catch(() => undefined),
  );

/** The entries of the menu that is open; none while there is no menu. */
function menuEntries(program: Program): string[] {
  const all = program.desktop.accessiblesOf(program.process.pid);
  return all
    .filter(({ role, state, name }) => role === 'menu item' && state !== 'hidden' && name !== '')
    .map(({ name }) => name);
}

async function contextMenu(program: Program): Promise<string[]> {
  const { desktop } = program;
  desktop.rightClick(program.window, { x: 400, y: 500 });
  const entries = await until('the menu', () => {
    const seen = menuEntries(program);
    return seen.length > 0 && seen;
  });
  desktop.press('Escape');
  await until('the menu to go', () => program.windows().length === 1);
  return entries;
}

test('a page whose process is killed comes back with its unsaved sheets', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const program = await open([file]);
  await enterValue(program, '6');
  await recorded(program, '"int":"6"');
  await killPage(program);
  await program.shows(BACK);
  await shown(program, '6');
  await barShows(program, 'mine.words.tessary*');
  program.desktop.focus(program.window);
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  expect(savedValues(file)).toEqual(['0x6']);
  expect(await program.close()).toBe(0);
  expect(program.log()).toContain('[Backend Error] The process of the page ended\n');
});

test("a page whose process is killed keeps a saved document, not the command line's", async ({ open, sandbox }) => {
  const program = await open([sandbox.write('first.words.tessary', documentText({ int: '0x5' }))]);
  await shown(program, '5');
  const other = sandbox.write('other.words.tessary', documentText({ displayName: 'Other', int: '0x7' }));
  program.desktop.focus(program.window);
  program.desktop.press('ctrl+o');
  const dialog = await FileDialog.shown(program, 'Open');
  await dialog.type(other);
  await dialog.confirm();
  await barShows(program, 'other.words.tessary');
  await enterValue(program, '8');
  program.desktop.press('ctrl+s');
  await recorded(program, '"int":"8"');
  await killPage(program);
  await program.shows(BACK);
  await shown(program, '8');
});

test('a page whose process ends a fourth time within a minute is given up with a sentence', async ({
  open,
  sandbox,
}) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  for (let i = 0; i < 3; i++) await killPageProcess(program);
  process.kill(pageProcess(program), 'SIGKILL');
  const box = await MessageBox.shown(program);
  expect(box.text).toContain('Tessary ends because the process that shows its page ended again and again');
  program.desktop.press('Return');
  expect(await program.process.exit()).toBe(0);
});

test("the engine's own reload keeps unsaved work, wherever the page is", async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  await enterValue(program, '6');
  expect(await program.page.evaluate(() => location.pathname)).toBe('/tools/words');
  await reload(program);
  await shown(program, '6');
  await barShows(program, 'mine.words.tessary*');
  expect(program.log()).not.toContain('-> 404');
});

test("the engine's menu leads nowhere", async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const ordinary = await contextMenu(program);
  expect(ordinary).toContain('Inspect Element');
  expect(ordinary).not.toContain('Reload');
  expect(ordinary).not.toContain('Back');
});

test('nothing of a document stays behind, and two windows keep their own', async ({ open, sandbox }) => {
  const text = (name: string) => documentText({ displayName: name, int: '0xabcdef0123456789' });
  const first = await open([sandbox.write('first.words.tessary', text('Secret of the first'))]);
  const second = await open([sandbox.write('second.words.tessary', text('Secret of the second'))]);
  await first.shows('Secret of the first');
  await second.shows('Secret of the second');
  expect(await first.close()).toBe(0);
  await reload(second);
  await second.shows('Secret of the second');
  expect(await second.close()).toBe(0);
  const found = () => execFileSync('grep', ['-rlaE', 'Secret|abcdef0123456789|12379813738877118345', sandbox.home]);
  expect(found).toThrow(); // grep finds nothing
  expect(readFileSync(sandbox.logFile, 'utf8')).not.toContain('Secret');
});
