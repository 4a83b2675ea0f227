import { expect, test } from '../support/linux/fixtures';
import { savedValues, shown } from '../support/linux/nativeDocument';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

const INITIAL_HASH = '6a09e667 bb67ae85 3c6ef372 a54ff53a 510e527f 9b05688c 1f83d9ab 5be0cd19';

/** Gives a control of the first word the focus, and the window the keyboard. */
async function focus(program: Program, control: 'value' | 'bits') {
  await until(`the ${control} of a word`, () =>
    program.page.evaluate((key) => {
      const element = document.querySelector<HTMLElement>(`[data-word] [data-focus-key="${key}"]`);
      element?.focus();
      return element !== null && document.activeElement === element;
    }, control),
  );
  program.desktop.focus(program.window);
}

const focusedText = (program: Program) => program.page.evaluate(() => document.activeElement?.textContent);
const focusedName = (program: Program) =>
  program.page.evaluate(() => document.activeElement?.getAttribute('aria-label'));

test('a word is copied for another program, as a number and as a form of a program', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0xbeef', intResolution: 32 }))]);
  await shown(program, '48879');
  await focus(program, 'bits');
  program.desktop.press('ctrl+c');
  await program.shows('Copied 5 characters');
  expect(program.desktop.clipboard()).toBe('48879');
  program.desktop.press('shift+F10', 'Down', 'Right', 'c', 'Return');
  await program.shows('Copied 50 characters');
  expect(program.desktop.clipboard()).toBe('const uint8_t value[4] = {0x00, 0x00, 0xbe, 0xef};');
  expect(await focusedName(program)).toBe('Bit field (32 bits)');
  program.desktop.press('ctrl+shift+c');
  await until('the same again', () => program.desktop.clipboard().startsWith('const uint8_t'));
});

test('what another program copied is pasted on a word, also from a text field', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5', intResolution: 256 }));
  const program = await open([file]);
  await shown(program, '5');
  await focus(program, 'bits');
  program.desktop.putOnClipboard('0xdead_beef');
  program.desktop.press('ctrl+v');
  await shown(program, String(0xdeadbeef));
  await program.shows('Pasted 0xdeadbeef');
  expect(await focusedName(program)).toBe('Bit field (256 bits)');
  program.desktop.putOnClipboard(INITIAL_HASH);
  await focus(program, 'value');
  program.desktop.press('ctrl+shift+v');
  await program.shows('Read as');
  program.desktop.press('Return');
  await program.shows('Pasted 0x6a09e667bb67ae85');
  program.desktop.press('ctrl+s');
  await until('the hash on disk', () => savedValues(file)[0] === `0x${INITIAL_HASH.replaceAll(' ', '')}`);
});

test('the menu comes by the right button and by both keys, and never offers a reload', async ({ open, sandbox }) => {
  const program = await open([
    sandbox.write('mine.words.tessary', documentText({ int: '0x12345678', intResolution: 32 })),
  ]);
  await shown(program, String(0x12345678));
  await focus(program, 'bits');
  for (const key of ['Menu', 'shift+F10']) {
    program.desktop.press(key);
    await until(`the menu by ${key}`, async () => (await focusedText(program))?.startsWith('Copy'));
    expect(program.windows()).toHaveLength(1);
    expect(await program.text()).not.toContain('Reload');
    program.desktop.press('Escape');
    await until('the focus to be back', async () => (await focusedName(program)) === 'Bit field (32 bits)');
  }
  const place = await program.page.evaluate(() => {
    const { left, top, width, height } = document
      .querySelector('[data-word] [data-focus-key="bits"]')!
      .getBoundingClientRect();
    return { x: left + Math.min(width, 300) / 2, y: top + height / 2 };
  });
  program.desktop.rightClick(program.window, place);
  await program.shows('Copy mask');
  expect(program.windows()).toHaveLength(1);
  program.desktop.press('s', 'Return');
  await shown(program, String(0x78563412));
  program.desktop.press('ctrl+k');
  program.desktop.type('ror 8');
  program.desktop.press('Return');
  await shown(program, String(0x12785634));
  program.desktop.press('ctrl+period');
  await shown(program, String(0x34127856));
});
