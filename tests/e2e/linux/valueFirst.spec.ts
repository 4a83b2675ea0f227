import { expect, test } from '../support/linux/fixtures';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

/** The first word's field with the keyboard in it, and what of its text is selected. */
const focusedValue = (program: Program) =>
  program.page.evaluate(() => {
    const field = document.activeElement;
    if (!(field instanceof HTMLInputElement) || field.ariaLabel !== 'Value') return null;
    const word = field.closest('[data-word]')?.ariaLabel;
    return { word, text: field.value, selected: field.value.slice(field.selectionStart ?? 0, field.selectionEnd ?? 0) };
  });

/** A field of a word, as the page shows it. */
const fieldOf = (program: Program, word: string, name: string) =>
  program.page.evaluate(
    (wanted, label) =>
      document.querySelector<HTMLInputElement>(`[aria-label="${wanted}"] input[aria-label="${label}"]`)?.value,
    word,
    name,
  );

test('a number typed after New is in view in every row', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  program.desktop.focus(program.window);
  program.desktop.press('ctrl+n');
  await until('the first field', async () => (await focusedValue(program))?.selected === '0');
  program.desktop.type('3221225620');
  program.desktop.press('Return');
  await until('the number', async () => (await fieldOf(program, 'Int 32 word 1', 'Base 16')) === 'C0000094');
  const rows = await program.page.evaluate(async () => {
    const seen: Record<string, [beyond: number, room: number]> = {};
    for (const row of document.querySelectorAll('[data-scroller="sheet"] > [role="group"]')) {
      row.scrollIntoView({ block: 'nearest' });
      const scrollerOfRow = () => row.querySelector('[data-scroller="row"]');
      while (!scrollerOfRow()) await new Promise(requestAnimationFrame); // a row is made when it is in view
      await new Promise((resolve) => requestAnimationFrame(() => setTimeout(resolve)));
      const scroller = scrollerOfRow()!.getBoundingClientRect();
      const word = row.querySelector('[data-word="0"]')!.getBoundingClientRect();
      seen[row.ariaLabel!] = [Math.round(word.right - scroller.right), scroller.width];
    }
    return seen;
  });
  expect(Object.keys(rows)).toHaveLength(5);
  for (const [label, [beyond, room]] of Object.entries(rows)) {
    expect(beyond, label).toBe(0);
    expect(room, label).toBeGreaterThanOrEqual(560); // 32 bits
  }
});

test('a document from the command line takes what is typed at once', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  await until('the first field', async () => (await focusedValue(program)) !== null);
  expect(await focusedValue(program)).toEqual({ word: 'Int 64 word 1', text: '5', selected: '5' });
  program.desktop.focus(program.window);
  program.desktop.type('1234');
  program.desktop.press('Return');
  await until('the value', async () => (await fieldOf(program, 'Int 32 word 1', 'Base 16')) === '4D2');
});

test('a float stays a float when a bit is pressed next', async ({ open, sandbox }) => {
  const text = documentText({ int: '0x0', intResolution: 32 });
  const program = await open([sandbox.write('mine.words.tessary', text)]);
  await until('the first field', async () => (await focusedValue(program)) !== null);
  program.desktop.focus(program.window);
  await program.page.evaluate(async () => {
    const buttons = () => [...document.querySelectorAll<HTMLElement>('button, [role="option"]')];
    const painted = () => new Promise((resolve) => requestAnimationFrame(() => setTimeout(resolve)));
    for (const text of [/^Converters/, /^FLOAT$/, /^Converters/]) {
      buttons()
        .find(({ textContent }) => text.test(textContent))!
        .click();
      await painted();
    }
    const field = document.querySelector<HTMLInputElement>('[aria-label="Int 32 word 1"] input[aria-label="Float"]')!;
    field.focus();
    field.select();
  });
  program.desktop.type('-1234.5625');
  program.desktop.press('Return');
  await until('the float', async () => (await fieldOf(program, 'Int 32 word 1', 'Base 16')) === 'C49A5200');
  const bit = await program.page.evaluate(() => {
    const canvas = document.querySelector('[aria-label="Int 32 word 1"] canvas')!.getBoundingClientRect();
    return { x: canvas.left + canvas.width / 4 + 12, y: canvas.top + 26 }; // bit 23: the second byte's first
  });
  program.desktop.click(program.window, bit);
  await until('the bit', async () => (await fieldOf(program, 'Int 32 word 1', 'Base 16')) === 'C41A5200');
  expect(await fieldOf(program, 'Int 32 word 1', 'Float')).toBe('-617.28125');
});
