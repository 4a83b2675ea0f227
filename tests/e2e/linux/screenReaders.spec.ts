import { expect, test } from '../support/linux/fixtures';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

/** What a screen reader gets of the page, from the desktop's own accessibility bus. */
const heard = (program: Program) => program.desktop.accessiblesOf(program.process.pid, 'page');

/** Waits until a screen reader finds something of this role and name. */
async function finds(program: Program, role: string, name: string) {
  await until(`${role} "${name}"`, () => heard(program).some((each) => each.role === role && each.name === name));
}

async function focus(program: Program, word: string, control: string) {
  await until(`${control} of ${word}`, () =>
    program.page.evaluate(
      (name, selector) => {
        const element = document.querySelector<HTMLElement>(`[aria-label="${name}"] ${selector}`);
        element?.focus();
        return element !== null && document.activeElement === element;
      },
      word,
      control,
    ),
  );
  program.desktop.focus(program.window);
}

/** Runs in the page: reports stay. On a busy machine it takes longer than a report's five seconds to find all that is on the page. */
function stopLongTimers() {
  const { setTimeout } = window;
  const start = (run: () => void, delay = 0) => (delay < 5000 ? setTimeout(run, delay) : 0);
  Object.assign(window, { setTimeout: start });
}

test('a screen reader finds rows, words and fields, and how many words a row out of view has', async ({
  open,
  sandbox,
}) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5', intResolution: 1024 }))]);
  await finds(program, 'panel', 'Int 1024 word 1');
  await finds(program, 'push button', 'Int 8: 128 words');
  const all = heard(program);
  const rows = all.filter(({ role, name }) => role === 'panel' && /^(Int|Color) \d+$/.test(name));
  expect(rows.map(({ name }) => name)).toEqual([
    ...[1024, 512, 256, 128, 64, 32, 16, 8].map((bits) => `Int ${bits}`),
    'Color 32',
  ]);
  const word = all.findIndex(({ name }) => name === 'Int 1024 word 1');
  const fields = all.slice(word).filter(({ role }) => role === 'entry');
  expect(fields.slice(0, 4).map(({ name, text }) => `${name}: ${text}`)).toEqual([
    'Value: 5',
    'Base 2: 101',
    'Base 8: 5',
    'Base 16: 5',
  ]);
});

test('a screen reader hears once what an operation made of a word', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5', intResolution: 32 }))]);
  await finds(program, 'status bar', ''); // a reader reads the page before it is told of changes
  await program.desktop.listen(async (heard) => {
    const said = async (text: string) => {
      await until(`"${text}"`, () => heard().some((each) => each[1] === text));
      expect(heard().filter((each) => each[1] === text)).toEqual([['status bar', text]]);
    };
    await focus(program, 'Int 32 word 1', '[data-operation="shift-left"]');
    program.desktop.press('space');
    await said('Shift left: Int 32 word 1 is 10');
    program.desktop.press('space');
    await said('Shift left: Int 32 word 1 is 20');
    program.desktop.press('ctrl+z');
    await said('Undid shift left, Int 32 word 1');
  });
});

test('a screen reader finds bits one by one, and what an operation made of a word', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5', intResolution: 32 }))]);
  await focus(program, 'Int 32 word 1', 'canvas');
  await finds(program, 'image', 'bit 0: 1');
  const bits = heard(program).filter(({ name }) => /^bit \d+:/.test(name));
  expect(bits.map(({ name }) => name)).toEqual(
    Array.from({ length: 32 }, (_, place) => `bit ${31 - place}: ${place === 29 || place === 31 ? 1 : 0}`),
  );
  program.desktop.press('End', '0');
  await finds(program, 'image', 'bit 0: 0');
  await focus(program, 'Int 32 word 1', '[data-operation="shift-left"]');
  await program.page.evaluate(stopLongTimers);
  program.desktop.press('space');
  const reports = () => heard(program).filter(({ text }) => text === 'Shift left: Int 32 word 1 is 8');
  await until('the report', () => reports().length > 0);
  expect(reports().map(({ role }) => role)).toEqual(['status bar', 'section']);
});
