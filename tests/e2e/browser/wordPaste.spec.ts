import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 }, permissions: ['clipboard-read', 'clipboard-write'] });

const put = (page: Page, text: string) => page.evaluate((content) => navigator.clipboard.writeText(content), text);
const form = (page: Page) => page.getByRole('dialog', { name: 'Paste' });

test.describe('pasting into a word', () => {
  test('takes a plain number at once, as one step', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const { value, bits } = tool.word(64, 1);
    await put(page, ' 0xDEAD_BEEFull ');
    await bits.focus();
    await page.keyboard.press('Control+v');
    await expect(value).toHaveValue(`3735928559`);
    await expect(tool.status).toHaveText('Pasted 0xdeadbeef, base 16');
    await expect(bits).toBeFocused();
    await expect(form(page)).toBeHidden();
    await page.keyboard.press('Control+z');
    await expect(value).toHaveValue('5');
    await expect(tool.status).toHaveText('Undid paste, Int 64 word 1');
  });

  test('leaves the key in a text field to the browser, and takes it there with Shift', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const { value } = tool.word(64, 1);
    await put(page, '0x10');
    await value.focus();
    await page.keyboard.press('Control+a');
    await page.keyboard.press('Control+v');
    await expect(value).toHaveValue('0x10');
    await page.keyboard.press('Escape');
    await expect(value).toHaveValue('5');
    await page.keyboard.press('Control+Shift+v');
    await expect(value).toHaveValue('16');
    await expect(value).toBeFocused();
  });

  test('takes a color at once where a color is', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x40000000' });
    await put(page, '#ff8000');
    await tool.color(1).getByRole('button', { name: 'Color notation' }).focus();
    await page.keyboard.press('Control+v');
    await expect(tool.word(32, 1).value).toHaveValue('1073774847'); // 0x400080ff: the alpha stays
    await page.keyboard.press('Control+c');
    await expect.poll(() => page.evaluate(() => navigator.clipboard.readText())).toBe('#ff800040');
  });

  test('shows how a list is read, what changes, and applies it with Enter', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 256 });
    const { value, bits } = tool.word(256, 1);
    await put(page, 'uint16_t key[] = {0x1234, 0x5678};');
    await bits.focus();
    await page.keyboard.press('Control+v');
    await expect(form(page)).toBeVisible();
    await expect(page.getByLabel('Read as')).toHaveValue('list, 16 bits');
    await expect(page.locator('mark')).toHaveText(['1', '2', '3', '4', '5', '6', '7', '8']);
    await expectAccessible();
    await page.getByLabel('Most significant').selectOption('last');
    await page.getByLabel('Into').selectOption('Int 64');
    await page.getByLabel('Word', { exact: true }).selectOption('4');
    await expect(value).toHaveValue('1');
    await page.keyboard.press('Enter');
    await expect(value).toHaveValue(`${(0x56781234n << 192n) + 1n}`);
    await expect(bits).toBeFocused();
  });

  test('changes nothing when it is left with Escape', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const { value, bits } = tool.word(64, 1);
    await put(page, '1, 2, 3');
    await bits.focus();
    await page.keyboard.press('Control+v');
    await page.getByRole('textbox', { name: 'Text' }).fill('4, 5, 6');
    await page.keyboard.press('Escape');
    await expect(form(page)).toBeHidden();
    await expect(value).toHaveValue('5');
    await expect(bits).toBeFocused();
    await expect(page.getByRole('button', { name: 'Save', exact: true })).toBeDisabled();
  });

  test('says what does not fit, and widens the sheet for it as one step', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5, intResolution: 256 });
    await put(page, Array(33).fill('ff').join(' '));
    await tool.word(256, 1).bits.focus();
    await page.keyboard.press('Control+v');
    await expect(form(page)).toContainText('33 bytes, room for 32');
    await page.getByRole('button', { name: 'Widen to 512' }).click();
    await page.getByRole('button', { name: 'Apply' }).click();
    await expect(tool.word(512, 1).value).toHaveValue(`${(1n << 264n) - 1n}`);
    await expect.poll(() => page.evaluate(() => document.activeElement?.tagName)).not.toBe('BODY');
    await page.keyboard.press('Control+z');
    await expect(tool.word(256, 1).value).toHaveValue('5');
    await expect(tool.status).toHaveText('Undid paste, Int 512 word 1');
  });

  test('widens with Enter, shows what comes of it, and applies it with another', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    await put(page, '2001:db8::1');
    await tool.word(64, 1).bits.focus();
    await page.keyboard.press('Control+v');
    await expect(form(page)).toContainText('126 bits, room for 64');
    await page.keyboard.press('Enter');
    await expect(form(page)).toContainText('20010db8');
    await expect(tool.resolution).toContainText('64');
    await page.keyboard.press('Enter');
    await expect(tool.resolution).toContainText('128');
    await expect(tool.word(128, 1).base(16)).toHaveValue('20010DB8000000000000000000000001');
  });

  test('offers a wider word of the same sheet', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    await put(page, '300');
    await tool.word(8, 4).bits.focus();
    await page.keyboard.press('Control+v');
    await expect(form(page)).toContainText('9 bits, room for 8');
    await page.getByRole('button', { name: 'Into 16 bits' }).click();
    await page.getByRole('button', { name: 'Apply' }).click();
    await expect(tool.word(16, 2).value).toHaveValue('300');
  });

  test('reads what cannot be a number as characters only when it is asked to', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    await put(page, 'Hi, you!');
    await tool.word(64, 1).bits.focus();
    await page.keyboard.press('Control+v');
    await expect(form(page)).toContainText('This is no number in any form that can be read');
    await page.getByLabel('Read as').selectOption('plain text, UTF-8');
    await page.keyboard.press('Enter');
    await expect(tool.word(64, 1).base(16)).toHaveValue('48692C20796F7521');
  });

  test('answers a text of a million characters', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    await put(page, '1'.repeat(1_000_000));
    await tool.word(64, 1).bits.focus();
    await page.keyboard.press('Control+v');
    await expect(form(page)).toContainText('1000000 characters, at most 16384 are read');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Escape');
    await expect(tool.word(64, 1).value).toHaveValue('5');
  });

  test('takes a dropped text on the word under the pointer', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const data = await page.evaluateHandle(() => {
      const transfer = new DataTransfer();
      transfer.setData('text/plain', '0x77');
      return transfer;
    });
    await tool.word(8, 3).bits.dispatchEvent('dragover', { dataTransfer: data });
    await tool.word(8, 3).bits.dispatchEvent('drop', { dataTransfer: data });
    await expect(tool.word(64, 1).value).toHaveValue(`7798784`);
  });

  test('asks by the menu, filled with what is on the clipboard', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    await put(page, '127.0.0.1');
    await tool.word(64, 1).sign.click({ button: 'right' });
    await page.getByRole('menuitem', { name: 'Paste…' }).click();
    await expect(page.getByLabel('Read as')).toHaveValue('IPv4 address');
    await page.keyboard.press('Enter');
    await expect(tool.word(64, 1).value).toHaveValue(`2130706433`);
  });

  test('asks with an empty text where the engine delivers no paste', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    await page.evaluate(() => {
      navigator.clipboard.readText = () => Promise.reject(new Error('refused'));
      addEventListener('paste', (event) => event.stopImmediatePropagation(), { capture: true });
    });
    await tool.word(64, 1).bits.focus();
    await page.keyboard.press('Control+v');
    await expect(page.getByRole('textbox', { name: 'Text' })).toBeFocused();
    await page.keyboard.type('1, 2');
    await page.keyboard.press('Enter');
    await expect(tool.word(64, 1).value).toHaveValue('258');
  });
});
