import { expect, test } from '../support/linux/fixtures';
import { shown } from '../support/linux/nativeDocument';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

/** What a user would call the thing that has the keyboard. */
const focusedName = (program: Program) =>
  program.page.evaluate(() => {
    const { activeElement } = document;
    return activeElement?.getAttribute('aria-label') ?? activeElement?.textContent.trim();
  });

async function presses(program: Program, key: string, expected: string) {
  program.desktop.press(key);
  await until(`${expected} after ${key}`, async () => (await focusedName(program)) === expected);
}

/** Opens two sheets, with the keyboard in the first word's field. */
async function openTwo(open: (args: string[]) => Promise<Program>, write: (name: string, text: string) => string) {
  const sheets = [
    { id: 'one', int: '0x1', intResolution: 32 },
    { id: 'two', displayName: 'Number B', int: '0x2', intResolution: 32 },
  ];
  const program = await open([write('mine.words.tessary', documentText(...sheets))]);
  await until('the first field', async () => (await focusedName(program)) === 'Value');
  program.desktop.focus(program.window);
  return program;
}

test('F6 and Shift+F6 go between the document bar, the tabs, the toolbar and the sheet', async ({ open, sandbox }) => {
  const program = await openTwo(open, (...file) => sandbox.write(...file));
  const places = ['New', 'Number A', 'Resolution 32', 'Value'];
  for (const place of places) await presses(program, 'F6', place);
  for (const place of ['Resolution 32', 'Number A', 'New', 'Value']) await presses(program, 'shift+F6', place);
  // What had the keyboard in a bar gets it again there.
  await presses(program, 'F6', 'New');
  await presses(program, 'Right', 'Open');
  for (const place of ['Number A', 'Resolution 32', 'Value', 'Open']) await presses(program, 'F6', place);
});

test('Ctrl+Page Down and Ctrl+Page Up change sheets, and leave the keyboard in the field', async ({
  open,
  sandbox,
}) => {
  const program = await openTwo(open, (...file) => sandbox.write(...file));
  await shown(program, '1');
  for (const [key, value] of [
    ['ctrl+Next', '2'],
    ['ctrl+Next', '2'], // there is no other sheet
    ['ctrl+Prior', '1'],
  ] as const) {
    program.desktop.press(key);
    await shown(program, value);
    expect(await focusedName(program)).toBe('Value');
  }
  program.desktop.press('ctrl+Next');
  await shown(program, '2');
  program.desktop.press('ctrl+a');
  program.desktop.type('7');
  program.desktop.press('Return');
  await shown(program, '7');
  program.desktop.press('ctrl+Prior');
  await shown(program, '1');
});
