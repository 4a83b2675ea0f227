import { existsSync, readdirSync, readFileSync, statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { MessageBox } from '../support/linux/dialog';
import { expect, type ProgramSandbox, test } from '../support/linux/fixtures';
import { Inspector } from '../support/linux/inspector';
import { barShows, enterValue, savedValues } from '../support/linux/nativeDocument';
import { freePort, type Program } from '../support/linux/program';
import { Desktop, type DesktopWindow } from '../support/shared/desktop';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

const COPY = 'mine (unsaved).words.tessary';

const folderOf = (sandbox: ProgramSandbox) => join(sandbox.home, '.local/state/tessary');
const copyOf = (sandbox: ProgramSandbox, name = COPY) => join(folderOf(sandbox), name);

/** The copies on the disk, whoever has written them. */
const copies = (sandbox: ProgramSandbox) =>
  existsSync(folderOf(sandbox)) ? readdirSync(folderOf(sandbox)).filter((name) => name.includes('(unsaved')) : [];

const write1024 = (sandbox: ProgramSandbox) =>
  sandbox.write(
    'mine.words.tessary',
    documentText({ int: `0x${'a5'.repeat(128)}`, intResolution: 1024 }, { id: 'two', int: '0x1', intResolution: 1024 }),
  );

const noticeOf = (program: Program): DesktopWindow | undefined =>
  program.windows().find(({ title }) => title === 'Notice - Tessary');

/** Waits for the notice, and gives what a screen reader reads in it. */
async function readNotice(program: Program): Promise<string[]> {
  await until('the notice', () => noticeOf(program));
  return until('its texts', () => {
    const names = program.desktop.accessiblesOf(program.process.pid).map(({ name }) => name);
    return names.some((name) => name.includes('Unsaved work')) && names;
  });
}

/** Presses one of the notice's buttons by keyboard. */
async function press(program: Program, button: 'Open' | 'Show folder' | 'Delete') {
  const notice = noticeOf(program);
  if (!notice) throw new Error('There is no notice');
  const { desktop, process } = program;
  desktop.focus(notice);
  await until(`the focus on ${button}`, () => {
    const isThere = desktop
      .accessiblesOf(process.pid)
      .some(({ name, state }) => name === button && state === 'focused');
    if (!isThere) desktop.press('shift+Tab');
    return isThere;
  });
  desktop.press('Return');
}

test('kill -9: the next start offers the work of before, opens it in a window of its own, and deletes it when asked', async ({
  open,
  sandbox,
}) => {
  const file = write1024(sandbox);
  const killed = await open([file]);
  await enterValue(killed, '123456789');
  await until('the copy', () => existsSync(copyOf(sandbox)));
  expect(savedValues(copyOf(sandbox))).toEqual(['0x75bcd15', '0x1']);
  expect(statSync(copyOf(sandbox)).mode & 0o777).toBe(0o600);
  expect(statSync(folderOf(sandbox)).mode & 0o777).toBe(0o700);
  await killed.process.end();

  const next = await open();
  await next.shows('Open Words Tool');
  const texts = await readNotice(next);
  expect(texts).toEqual(expect.arrayContaining(['Open', 'Show folder', 'Delete', 'Close']));
  expect(texts.join('\n')).toMatch(/mine \(unsaved\)\.words\.tessary, \d{4}-\d\d-\d\d \d\d:\d\d:\d\d/);
  await press(next, 'Open');
  await until('a window of its own', () => next.log().includes(`[Backend] Opening file: ${copyOf(sandbox)}\n`));
  expect(savedValues(copyOf(sandbox))).toEqual(['0x75bcd15', '0x1']);
  await press(next, 'Delete');
  await until('the copy to go', () => copies(sandbox).length === 0);
  await until('the notice to go', () => !noticeOf(next));
  expect(savedValues(file)).toHaveLength(2);
});

test("the notice shows the copies' folder in the desktop's file manager", async ({ open, sandbox, linkRecorder }) => {
  const killed = await open([write1024(sandbox)]);
  await enterValue(killed, '42');
  await until('the copy', () => existsSync(copyOf(sandbox)));
  await killed.process.end();
  const next = await open();
  await readNotice(next);
  await press(next, 'Show folder');
  expect(decodeURI(await linkRecorder.opened('the notice'))).toContain(folderOf(sandbox));
  expect(copies(sandbox)).toEqual([COPY]);
});

test('SIGTERM keeps the work of this moment', async ({ open, sandbox }) => {
  const program = await open([write1024(sandbox)]);
  await enterValue(program, '42');
  process.kill(program.process.pid, 'SIGTERM');
  expect(await program.process.exit()).toBe(0);
  expect(savedValues(copyOf(sandbox))[0]).toBe('0x2a');
  await readNotice(await open());
});

test('a dead X server leaves the work of at most ten seconds before', async ({ run, open, sandbox }) => {
  const screen = await Desktop.start();
  const port = await freePort();
  const env = { ...screen.environment, HOME: sandbox.home, WEBKIT_INSPECTOR_HTTP_SERVER: `127.0.0.1:${port}` };
  const program = run([write1024(sandbox)], { env });
  try {
    const page = await Inspector.connect(port, () => program.running);
    // Without keyboard and mouse, as assistive technology does it.
    await until('a change', () =>
      page
        .evaluate(() => {
          // An answer may be lost: what was added by then is not added again.
          if (document.querySelectorAll('[role="tab"]').length > 2) return true;
          document.querySelector<HTMLElement>('[aria-label="Add sheet"]')?.click();
          return false;
        })
        .catch(() => false),
    );
    await until('the copy', () => existsSync(copyOf(sandbox)));
    page.disconnect();
  } finally {
    await screen.stop();
  }
  await program.exit();
  expect(savedValues(copyOf(sandbox))).toHaveLength(3);
  await readNotice(await open());
});

test('the copy goes when the work is saved, or discarded', async ({ open, sandbox }) => {
  const program = await open([write1024(sandbox)]);
  await enterValue(program, '42');
  await until('the copy', () => existsSync(copyOf(sandbox)));
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  await until('the copy to go', () => copies(sandbox).length === 0);

  await enterValue(program, '43');
  await until('another copy', () => existsSync(copyOf(sandbox)));
  program.desktop.close(program.window);
  await MessageBox.shown(program);
  program.desktop.press('shift+Tab', 'Return');
  expect(await program.process.exit()).toBe(0);
  expect(copies(sandbox)).toEqual([]);
  const next = await open();
  await next.shows('Open Words Tool');
  expect(next.windows()).toHaveLength(1);
});

test("two programs at once never touch each other's copies, and offer none of the living", async ({
  open,
  sandbox,
}) => {
  const file = write1024(sandbox);
  const first = await open([file]);
  await enterValue(first, '1');
  await until('the first copy', () => existsSync(copyOf(sandbox)));
  const second = await open([file]);
  await enterValue(second, '2');
  const other = copyOf(sandbox, 'mine (unsaved 2).words.tessary');
  await until('the second copy', () => existsSync(other));
  expect(second.windows()).toHaveLength(1);
  second.desktop.focus(second.window);
  second.desktop.press('ctrl+s');
  await until('the second copy to go', () => !existsSync(other));
  expect(savedValues(copyOf(sandbox))[0]).toBe('0x1');
});

test('a folder that cannot be used costs the copy and nothing else', async ({ open, sandbox }) => {
  const state = join(sandbox.home, 'state');
  writeFileSync(state, 'no folder');
  const program = await open([write1024(sandbox)], { env: { XDG_STATE_HOME: state } });
  await enterValue(program, '42');
  process.kill(program.process.pid, 'SIGTERM');
  expect(await program.process.exit()).toBe(0);
  expect(readFileSync(state, 'utf8')).toBe('no folder');
});
