import { MessageBox } from '../support/linux/dialog';
import { expect, test } from '../support/linux/fixtures';
import { enterValue, savedValues, shown } from '../support/linux/nativeDocument';
import { pageProcess } from '../support/linux/pageProcess';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

const QUESTION = 'You have unsaved changes. Do you want to discard them?';
const REQUEST = 'the window is asked to close';

/** The program with a document that is changed and not saved. */
async function openChanged(
  open: (args: string[]) => Promise<Program>,
  write: (name: string, text: string) => string,
): Promise<{ program: Program; file: string }> {
  const file = write('mine.words.tessary', documentText({ int: '0x5' }));
  const program = await open([file]);
  await enterValue(program, '6');
  return { program, file };
}

test(`${REQUEST} with unsaved work: Cancel is the default, and Escape cancels`, async ({ open, sandbox }) => {
  const { program, file } = await openChanged(open, (name, text) => sandbox.write(name, text));
  for (const key of ['Return', 'Escape']) {
    program.desktop.close(program.window);
    const question = await MessageBox.shown(program);
    expect(question.text).toBe(QUESTION);
    await question.answer(key);
    expect(program.process.running).toBe(true);
    await shown(program, '6');
  }
  expect(savedValues(file)).toEqual(['0x5']);
});

test(`${REQUEST} with unsaved work: Discard closes it with code 0`, async ({ open, sandbox }) => {
  const { program, file } = await openChanged(open, (name, text) => sandbox.write(name, text));
  program.desktop.close(program.window);
  await MessageBox.shown(program);
  program.desktop.press('shift+Tab', 'Return');
  expect(await program.process.exit()).toBe(0);
  expect(savedValues(file)).toEqual(['0x5']);
  expect(program.log()).toMatch(/-> 200$/);
});

test(`${REQUEST} again and again: there is one question`, async ({ open, sandbox }) => {
  const { program } = await openChanged(open, (name, text) => sandbox.write(name, text));
  for (let i = 0; i < 5; i++) program.desktop.close(program.window);
  const question = await MessageBox.shown(program);
  expect(program.windows()).toHaveLength(2);
  await question.answer('Escape');
  expect(program.windows()).toHaveLength(1);
});

test(`${REQUEST} when all is saved or nothing is open: nothing is asked`, async ({ open, sandbox }) => {
  const empty = await open();
  await empty.shows('Open Words Tool');
  expect(await empty.close()).toBe(0);
  const saved = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  await shown(saved, '5');
  expect(await saved.close()).toBe(0);
});

test(`${REQUEST} while its page hangs: it closes without a question`, async ({ open, sandbox }) => {
  const { program } = await openChanged(open, (name, text) => sandbox.write(name, text));
  const page = pageProcess(program);
  process.kill(page, 'SIGSTOP');
  expect(await program.close()).toBe(0);
});

test('two windows ask about their own work', async ({ open, sandbox }) => {
  const first = await openChanged(open, (name, text) => sandbox.write(name, text));
  const second = await open([sandbox.write('other.words.tessary', documentText({ int: '0x7' }))]);
  await shown(second, '7');
  expect(await second.close()).toBe(0);
  first.program.desktop.close(first.program.window);
  await (await MessageBox.shown(first.program)).answer('Escape');
});

for (const signal of ['SIGTERM', 'SIGINT', 'SIGHUP'] as const) {
  test(`${signal} ends the program in order: code 0, whole log, free port, no question`, async ({ open, sandbox }) => {
    const { program } = await openChanged(open, (name, text) => sandbox.write(name, text));
    process.kill(program.process.pid, signal);
    expect(await program.process.exit()).toBe(0);
    expect(program.log()).toMatch(/-> 200$/);
    await expect(fetch(program.url)).rejects.toThrow('fetch failed');
  });
}

test('a signal ends the program while it asks, and while a file dialog is open', async ({ open, sandbox }) => {
  const asking = await openChanged(open, (name, text) => sandbox.write(name, text));
  asking.program.desktop.close(asking.program.window);
  await MessageBox.shown(asking.program);
  process.kill(asking.program.process.pid, 'SIGTERM');
  expect(await asking.program.process.exit()).toBe(0);

  const choosing = await openChanged(open, (name, text) => sandbox.write(name, text));
  choosing.program.desktop.press('ctrl+shift+s');
  await until('the dialog', () => choosing.program.windows().length > 1);
  process.kill(choosing.program.process.pid, 'SIGTERM');
  expect(await choosing.program.process.exit()).toBe(0);
});

test('a signal ends the program, too, when a file dialog comes after it', async ({ open, sandbox }) => {
  const { program } = await openChanged(open, (name, text) => sandbox.write(name, text));
  // What the page is told last: the program waits for no other answer.
  await program.page.evaluate(() => {
    addEventListener('tessary-end', () => void window.showSaveDialog!('a'));
  });
  process.kill(program.process.pid, 'SIGTERM');
  expect(await program.process.exit()).toBe(0);
});
