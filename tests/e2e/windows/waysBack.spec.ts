import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';
import { click } from '../support/windows/click';
import { MessageBox } from '../support/windows/commonDialog';
import { expect, test } from '../support/windows/fixtures';
import type { WindowsProgram } from '../support/windows/windowsProgram';

const BACK = 'The page ended unexpectedly and was loaded again. Your sheets are back as they were.';

async function openChanged(open: (args: string[]) => Promise<WindowsProgram>): Promise<WindowsProgram> {
  const program = await open(['mine.words.tessary']);
  await program.shows('Mine');
  await click(program, 'Add sheet');
  await program.shows('mine.words.tessary*');
  await until('the record', () =>
    program.page.evaluate(() => (localStorage.getItem('bits-sheets-storage') ?? '').includes('Number A')),
  );
  return program;
}

test.beforeEach(({ sandbox }) => void sandbox.write('mine.words.tessary', documentText({ displayName: 'Mine' })));

test('a page whose process has failed comes back with its unsaved sheets', async ({ open }) => {
  const program = await openChanged(open);
  program.runtime.failProcess('graphics');
  program.runtime.failProcess('page');
  await program.shows(BACK);
  await program.shows('mine.words.tessary*');
  await program.shows('Number A');
  expect(program.runtime.texts('navigate')).toEqual([program.url, `${program.url}/?restored`]);
});

test('the program ends with a sentence when the whole engine has ended', async ({ open }) => {
  const program = await openChanged(open);
  program.runtime.failProcess('browser');
  const box = await MessageBox.shown(program);
  expect(box.text).toContain('Tessary ends because the process that shows its page ended');
  program.desktop.press('Return');
  expect(await program.process.exit()).toBe(0);
});

test("the engine's own reload ends at the start page and keeps unsaved work", async ({ open }) => {
  const program = await openChanged(open);
  expect(await program.page.evaluate(() => location.pathname)).toBe('/tools/words');
  await program.page.evaluate(() => void setTimeout(() => location.reload()));
  await until('the start page', () => program.runtime.texts('navigate').includes(`${program.url}/`));
  await program.shows('mine.words.tessary*');
  await program.shows('Number A');
  expect(program.log()).not.toContain('-> 404');
});

test("the engine's menu, which leads away by Back and Reload, comes in fields and with Shift only", async ({
  open,
}) => {
  const program = await openChanged(open);
  const menuComes = (selector: string, shiftKey = false) =>
    program.page.evaluate(
      (wanted, shift) => {
        const event = new MouseEvent('contextmenu', { bubbles: true, cancelable: true, shiftKey: shift });
        return document.querySelector(wanted)?.dispatchEvent(event);
      },
      selector,
      shiftKey,
    );
  expect(await menuComes('[role=toolbar]')).toBe(false);
  expect(await menuComes('[role=toolbar]', true)).toBe(true);
  // A word's field has the page's own menu.
  await program.page.evaluate(() => document.body.append(document.createElement('textarea')));
  expect(await menuComes('body > textarea')).toBe(true);
});

test("at the end the page's storage is empty, although unsaved work was discarded a moment before", async ({
  open,
}) => {
  const program = await openChanged(open);
  program.runtime.closeWindow();
  await MessageBox.shown(program);
  program.desktop.press('Left', 'Return');
  expect(await program.process.exit()).toBe(0);
  expect(await program.page.evaluate(() => localStorage.length)).toBe(0);
});
