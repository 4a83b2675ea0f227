import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 }, permissions: ['clipboard-read', 'clipboard-write'] });

const clipboard = (page: Page) => page.evaluate(() => navigator.clipboard.readText());
const menu = (page: Page) => page.getByRole('menu', { name: 'Open the menu of the word' });
const item = (page: Page, name: string) => page.getByRole('menuitem', { name, exact: true });

test.describe('the menu of a word', () => {
  test('opens by the right button on a word, a bit field and a color', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x12345678', intResolution: 32 });
    const { value, sign, bits } = tool.word(32, 1);
    await sign.click({ button: 'right' });
    await expect(menu(page)).toBeVisible();
    await expectAccessible();
    await expect(item(page, 'Cut text')).toBeHidden();
    await expect(item(page, 'Copy mask')).toBeHidden();
    await expect(page.getByRole('menuitem', { name: 'Reload' })).toBeHidden();
    await page.keyboard.press('Escape');
    await tool.color(1).click({ button: 'right', position: { x: 10, y: 10 } });
    await item(page, 'Swap bytes').click();
    await expect(value).toHaveValue(`2018915346`);
    await expect(tool.status).toHaveText('Done: swap');
    await bits.click({ button: 'right' });
    await expect(value).toHaveValue(`2018915346`);
    await item(page, 'Copy mask').click();
    await expect.poll(() => clipboard(page)).toMatch(/^0x0*[1248]0*$/);
  });

  for (const key of ['Shift+F10', 'ContextMenu']) {
    test(`opens by ${key}, is used by arrow keys and letters, and gives the focus back`, async ({ page, enter }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 6 });
      const { value, bits } = tool.word(64, 1);
      await bits.focus();
      await page.keyboard.press(key);
      await expect(item(page, 'Copy')).toBeFocused();
      await page.keyboard.press('ArrowDown');
      await expect(item(page, 'Copy as')).toBeFocused();
      await page.keyboard.press('r');
      await expect(item(page, 'Reverse bits')).toBeFocused();
      await page.keyboard.press('r');
      await expect(item(page, 'Rotate…')).toBeFocused();
      await page.keyboard.press('Escape');
      await expect(menu(page)).toBeHidden();
      await expect(bits).toBeFocused();
      await value.focus();
      await page.keyboard.press(key);
      await page.keyboard.press('r');
      await page.keyboard.press('Enter');
      await expect(value).toHaveValue(`${BigInt('0x6000000000000000')}`);
      await expect(value).toBeFocused();
    });
  }

  test('leaves Shift and the right button, and what is no word, to the browser', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 6 });
    await tool.word(64, 1).value.click({ button: 'right', modifiers: ['Shift'] });
    await expect(menu(page)).toBeHidden();
    await page.keyboard.press('Escape');
    await tool.converters.click({ button: 'right' });
    await expect(menu(page)).toBeHidden();
  });

  test('begins with the text in a field, and keeps what is being typed', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 6 });
    const { value } = tool.word(64, 1);
    await value.fill('12345');
    await value.selectText();
    await page.keyboard.press('Shift+F10');
    await expect(item(page, 'Cut text')).toBeFocused();
    await page.keyboard.press('Escape');
    await expect(value).toHaveValue('12345');
    await page.keyboard.press('Shift+F10');
    await page.keyboard.press('Enter');
    await expect(value).toHaveValue('');
    await expect.poll(() => clipboard(page)).toBe('12345');
    await page.keyboard.press('Shift+F10');
    await item(page, 'Paste text').click();
    await expect(value).toHaveValue('12345');
    await page.keyboard.press('Escape');
    await expect(value).toHaveValue('6');
  });

  test('closes with a press elsewhere and with another sheet', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 6 }, { int: 7, displayName: 'Number B' });
    await tool.word(64, 1).sign.click({ button: 'right' });
    await tool.word(32, 1).value.click();
    await expect(menu(page)).toBeHidden();
    await expect(tool.word(32, 1).value).toBeFocused();
    await page.keyboard.press('Control+k');
    await page.getByRole('tab', { name: 'Number B' }).click();
    await expect(page.getByRole('dialog')).toBeHidden();
    await expect(tool.word(64, 1).value).toHaveValue('7');
  });

  test('goes to a bit by its number', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x2000000000' });
    await tool.word(64, 1).sign.click({ button: 'right' });
    await item(page, 'Go to bit…').click();
    await page.keyboard.type('64');
    await expect(page.getByText('Sheet has bits 0 to 63')).toBeVisible();
    await page.keyboard.press('Backspace');
    await page.keyboard.press('Backspace');
    await page.keyboard.type('37');
    await page.keyboard.press('Enter');
    await expect(tool.word(64, 1).bits).toBeFocused();
    await expect(tool.status).toContainText('bit 37 of word 1, 1');
  });
});

test.describe('copying', () => {
  test('takes the text of the main field, also from a read-only field', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0xffffffffffffffff', intResolution: 256 });
    const word = tool.word(256, 1);
    await word.bits.focus();
    await page.keyboard.press('Control+c');
    await expect(tool.status).toHaveText('Copied 20 characters');
    expect(await clipboard(page)).toBe('18446744073709551615');
    await tool.setConverters('FLOAT');
    await page.evaluate(() => navigator.clipboard.writeText(''));
    await word.float.focus();
    await word.float.press('Control+c');
    await expect.poll(() => clipboard(page)).toBe('18446744073709551615');
  });

  test('leaves a selected text to the browser', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 12345 });
    const { value } = tool.word(64, 1);
    await value.focus();
    await page.keyboard.press('Home');
    await page.keyboard.press('Shift+ArrowRight');
    await page.keyboard.press('Shift+ArrowRight');
    await page.keyboard.press('Control+c');
    await expect.poll(() => clipboard(page)).toBe('12');
  });

  test('as a form of a program shows each text before, in either order, and repeats the last one', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0xbeef', intResolution: 32 });
    const { bits } = tool.word(32, 1);
    await bits.focus();
    await page.keyboard.press('Shift+F10');
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('ArrowRight');
    await expectAccessible();
    await expect(page.getByText('const uint8_t value[4] = {0x00, 0x00, 0xbe, 0xef};')).toBeVisible();
    await page.getByRole('menuitemradio', { name: 'Least significant byte first' }).click();
    await page.getByText('const uint8_t value[4] = {0xef, 0xbe, 0x00, 0x00};').click();
    await expect(tool.status).toHaveText('Copied 50 characters');
    expect(await clipboard(page)).toBe('const uint8_t value[4] = {0xef, 0xbe, 0x00, 0x00};');
    await expect(bits).toBeFocused();
    await tool.word(16, 1).bits.focus();
    await page.keyboard.press('Control+Shift+c');
    await expect.poll(() => clipboard(page)).toBe('const uint8_t value[2] = {0xef, 0xbe};');
    await page.keyboard.press('Shift+F10');
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('ArrowLeft');
    await expect(item(page, 'Copy')).toBeFocused();
  });

  test('shows the text, selected, where the clipboard is refused', async ({ page, enter, expectAccessible }) => {
    await page.addInitScript(() => {
      navigator.clipboard.writeText = () => Promise.reject(new Error('refused'));
    });
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 77 });
    const { bits } = tool.word(64, 1);
    await bits.focus();
    await page.keyboard.press('Control+c');
    const text = page.getByRole('textbox', { name: 'Text' });
    await expect(text).toBeFocused();
    await expect(text).toHaveValue('77');
    expect(await page.evaluate(() => getSelection()?.toString())).toBe('77');
    await expectAccessible();
    await page.keyboard.press('Escape');
    await expect(bits).toBeFocused();
  });
});
