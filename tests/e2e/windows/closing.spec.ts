import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';
import { click } from '../support/windows/click';
import { MessageBox } from '../support/windows/commonDialog';
import { expect, test } from '../support/windows/fixtures';
import type { WindowsProgram } from '../support/windows/windowsProgram';

const QUESTION = 'You have unsaved changes. Do you want to discard them?';

/** The program with a document that is changed and not saved. */
async function openChanged(open: () => Promise<WindowsProgram>): Promise<WindowsProgram> {
  const program = await open();
  await click(program, 'Open Words Tool');
  await click(program, 'Create Document');
  await program.shows('Untitled.words.tessary*');
  return program;
}

test('closing with unsaved work asks once: Cancel is the default, and Escape cancels', async ({ open }) => {
  const program = await openChanged(open);
  for (const key of ['Return', 'Escape']) {
    program.runtime.closeWindow();
    program.runtime.closeWindow();
    const question = await MessageBox.shown(program);
    expect(question.text).toBe(QUESTION);
    const buttons = program.controls('Unsaved Changes').filter(({ className }) => className === 'Button');
    expect(buttons.map(({ text }) => text)).toEqual(['Discard', 'Cancel']);
    await question.answer(key);
    expect(program.windows()).toHaveLength(1);
  }
  await program.shows('Untitled.words.tessary*');
});

test('closing with Alt+F4 and Discard ends the program with code 0', async ({ open, desktop }) => {
  const program = await openChanged(open);
  desktop.focus(program.window);
  desktop.press('alt+F4');
  await MessageBox.shown(program);
  desktop.press('Left', 'Return');
  expect(await program.process.exit()).toBe(0);
  expect(program.runtime.texts('unexpected-call')).toEqual([]);
});

test('closing a saved document asks nothing', async ({ open, sandbox }) => {
  sandbox.write('mine.words.tessary', documentText({ displayName: 'Mine' }));
  const program = await open(['mine.words.tessary']);
  await program.shows('Mine');
  expect(await program.close()).toBe(0);
});

test('closing while the page hangs asks nothing', async ({ open }) => {
  const program = await openChanged(open);
  const hanging = program.page.evaluate(() => {
    for (;;);
  });
  hanging.catch(() => undefined); // its browser is ended with the test
  expect(await program.close()).toBe(0);
});

test('the end of the session ends the program in order, without a question', async ({ open }) => {
  const program = await openChanged(open);
  program.runtime.closeWindow();
  await MessageBox.shown(program);
  program.runtime.endSession();
  expect(await program.process.exit()).toBe(0);
  expect(program.log()).toMatch(/-> 200$/);
});

test('the end of the session ends the program, too, when a file dialog comes after it', async ({ open }) => {
  const program = await openChanged(open);
  // What the page is told last: the program waits for no other answer.
  await program.page.evaluate(() => {
    addEventListener('tessary-end', () => void window.showSaveDialog!('a'));
  });
  program.runtime.endSession();
  expect(await program.process.exit()).toBe(0);
  expect(program.log()).toMatch(/-> 200$/);
});

test('closing while a file dialog is open waits for the dialog', async ({ open }) => {
  const program = await openChanged(open);
  await click(program, 'Save As');
  const dialog = await until('the dialog', () => program.windows().find(({ title }) => title === 'Save As'));
  program.runtime.closeWindow();
  program.desktop.focus(dialog);
  program.desktop.press('Escape');
  await until('the dialog to go', () => program.windows().length === 1);
  await program.shows('Untitled.words.tessary');
});
