import { expect, test } from '../support/linux/fixtures';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

const PI = documentText({ int: '0x400921fb54442d18', intResolution: 64 });

const focusedName = (program: Program) =>
  program.page.evaluate(() => document.activeElement?.getAttribute('aria-label'));

test('a word is read in every way by keyboard alone, and a reading is copied for another program', async ({
  open,
  sandbox,
}) => {
  const program = await open([sandbox.write('mine.words.tessary', PI)]);
  await until('the first field', async () => (await focusedName(program)) === 'Value');
  program.desktop.focus(program.window);
  await program.shows('23 of 64 bits set, 1 leading, 3 trailing zeros');
  program.desktop.press('ctrl+i');
  await program.shows('3.141592653589793115997963468544185161590576171875');
  expect(await focusedName(program)).toBe('Copy Unsigned');
  program.desktop.press('c', 'Return');
  await program.shows('Copied 20 characters');
  expect(program.desktop.clipboard()).toBe('0x1.921fb54442d18p+1');
  program.desktop.press('Escape');
  await until('the focus to be back', async () => (await focusedName(program)) === 'Value');
});

test('a press on the status line shows the readings of the focused word', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', PI)]);
  await until('the first field', async () => (await focusedName(program)) === 'Value');
  const place = await program.page.evaluate(() => {
    const line = [...document.querySelectorAll('button')].find(({ textContent }) => textContent.includes('bits set'))!;
    const { left, top, height } = line.getBoundingClientRect();
    return { x: left + 40, y: top + height / 2 };
  });
  program.desktop.click(program.window, place);
  await program.shows('Int 64 word 1, all readings');
  await until('the focus in the list', async () => (await focusedName(program)) === 'Copy Unsigned');
});
