import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';
import { test } from '../support/windows/fixtures';
import type { WindowsProgram } from '../support/windows/windowsProgram';

test.setTimeout(120_000);

/** Gives the first word's bit field the focus. */
const focusBits = (program: WindowsProgram) =>
  until('a bit field', () =>
    program.page.evaluate(() => {
      const bits = document.querySelector<HTMLElement>('[data-word] [data-focus-key="bits"]');
      bits?.focus();
      return bits !== null && document.activeElement === bits;
    }),
  );

const showsValue = (program: WindowsProgram, value: string) =>
  until(`the value ${value}`, () =>
    program.page.evaluate(
      (wanted) => document.querySelector<HTMLInputElement>('[aria-label="Value"]')?.value === wanted,
      value,
    ),
  );

// The runtime's clipboard is Chromium's; here the page gets what Chromium would hand it.
test('a pasted text becomes the word, and a list is asked about', async ({ open, sandbox }) => {
  sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const program = await open(['mine.words.tessary']);
  const paste = (text: string) =>
    program.page.evaluate((content) => {
      const key = { key: 'v', ctrlKey: true, bubbles: true, cancelable: true };
      document.activeElement?.dispatchEvent(new KeyboardEvent('keydown', key));
      const clipboardData = new DataTransfer();
      clipboardData.setData('text/plain', content);
      document.activeElement?.dispatchEvent(new ClipboardEvent('paste', { clipboardData, bubbles: true }));
    }, text);
  await focusBits(program);
  await paste('0xdead_beef');
  await showsValue(program, String(0xdeadbeef));
  await program.shows('Pasted 0xdeadbeef, base 16');
  await paste('{0x12, 0x34}');
  await program.shows('Read as');
  await program.page.evaluate(() => {
    const key = { key: 'Enter', bubbles: true, cancelable: true };
    document.activeElement?.dispatchEvent(new KeyboardEvent('keydown', key));
  });
  await showsValue(program, String(0x1234));
});

test('a copied word reaches the clipboard, or is shown where the runtime refuses it', async ({ open, sandbox }) => {
  sandbox.write('mine.words.tessary', documentText({ int: '0xff' }));
  const program = await open(['mine.words.tessary']);
  await focusBits(program);
  await program.page.evaluate(() => {
    const key = { key: 'c', ctrlKey: true, bubbles: true, cancelable: true };
    document.activeElement?.dispatchEvent(new KeyboardEvent('keydown', key));
  });
  await until('the copy or the text to copy', async () => {
    const shown = await program.page.evaluate(
      () => document.querySelector<HTMLTextAreaElement>('[role=dialog] textarea')?.value ?? '',
    );
    return shown === '255' || (await program.text()).includes('Copied 3 characters');
  });
});
