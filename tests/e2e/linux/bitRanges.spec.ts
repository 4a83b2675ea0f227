import { expect, test } from '../support/linux/fixtures';
import { shown } from '../support/linux/nativeDocument';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

const STATUS_CODE = 'severity 31:30\ncustomer 29\nfacility 27:16\ncode 15:0';

/** Gives the bits of the first word the focus, and the window the keyboard. */
async function focusBits(program: Program) {
  await until('the bits of a word', () =>
    program.page.evaluate(() => {
      const field = document.querySelector<HTMLElement>('[data-word] [data-focus-key="bits"]');
      field?.focus();
      return field !== null && document.activeElement === field;
    }),
  );
  program.desktop.focus(program.window);
}

/** The middle of a bit's cell in the first word, in a field of one line. */
const placeOf = (program: Program, bits: number, bit: number) =>
  program.page.evaluate(
    (count, at) => {
      const field = document.querySelector('[data-word] [data-focus-key="bits"]')!.getBoundingClientRect();
      return { x: field.left + (field.width / count) * (count - 0.5 - at), y: field.bottom - 23 };
    },
    bits,
    bit,
  );

test('bits are chosen with Shift and the pointer, read, copied and written', async ({ open, sandbox }) => {
  const program = await open([
    sandbox.write('mine.words.tessary', documentText({ int: '0x053ab7c1', intResolution: 32 })),
  ]);
  await shown(program, String(0x053ab7c1));
  await focusBits(program);
  const [from, to] = [await placeOf(program, 32, 23), await placeOf(program, 32, 20)];
  program.desktop.dragWith('shift', program.window, from, to);
  await program.shows('[23:20] 4 bits = 0x3 = 3, signed 3, mask 0x00F00000');
  program.desktop.press('shift+Right', 'shift+Right', 'shift+Right', 'shift+Right', 'ctrl+shift+Right', 'shift+Left');
  program.desktop.press('shift+Left', 'shift+Left', 'shift+Left');
  await program.shows('[23:12] 12 bits = 0x3AB = 939');
  program.desktop.press('ctrl+c');
  await until('the number on the clipboard', () => program.desktop.clipboard() === '939');
  program.desktop.type('0x12c');
  program.desktop.press('Return');
  await shown(program, String(0x0512c7c1));
  program.desktop.press('asciitilde');
  await shown(program, String(0x05ed37c1));
  program.desktop.press('Delete');
  await shown(program, String(0x050007c1));
  program.desktop.press('Escape', 'ctrl+g');
  program.desktop.type('3.7');
  program.desktop.press('Return');
  await program.shows('[31] 1 bit = 0x0 = 0');
  program.desktop.press('1');
  await shown(program, String(0x850007c1));
});

test('a table of a manual names the bits of a register', async ({ open, sandbox }) => {
  const program = await open([
    sandbox.write('mine.words.tessary', documentText({ int: '0xC0000094', intResolution: 32 })),
  ]);
  await shown(program, String(0xc0000094));
  await focusBits(program);
  program.desktop.putOnClipboard(STATUS_CODE);
  program.desktop.press('ctrl+v');
  await program.shows('severity 31:30 = 3');
  await program.shows('code 15:0 = 148');
  program.desktop.press('F6', 'End', 'Left', 'Left', 'Return');
  await program.shows('[15:0] 16 bits = 0x94 = 148');
  program.desktop.press('ctrl+c');
  await until('the code on the clipboard', () => program.desktop.clipboard() === '148');
  expect(program.windows()).toHaveLength(1);
});
