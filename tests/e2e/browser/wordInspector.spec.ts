import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 800, height: 600 }, permissions: ['clipboard-read', 'clipboard-write'] });

const PI = { int: '0x400921fb54442d18', intResolution: 64 };
const clipboard = (page: Page) => page.evaluate(() => navigator.clipboard.readText());
const inspector = (page: Page, word = 'Int 64 word 1') => page.getByRole('dialog', { name: `${word}, all readings` });
const summary = (page: Page) => page.locator('[aria-haspopup="dialog"]', { hasText: 'bits set' });
const copyButton = (page: Page, reading: string) =>
  inspector(page).getByRole('button', { name: `Copy ${reading}`, exact: true });
/** The text of a line, as the line's copy button is described by it. */
const reading = (page: Page, name: string) => inspector(page).locator('dt', { hasText: name }).locator('+ dd');

test.describe('the status line, while no bit is pointed at,', () => {
  test('is about the focused word and follows its value', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, PI);
    await expect(summary(page)).toHaveText(
      'Int 64 word 1 23 of 64 bits set, 1 leading, 3 trailing zeros float 3.14159265358979311599 ' +
        '“@.!.TD-.” 40 09 21 fb 54 44 2d 18 18 2d 44 54 fb 21 09 40',
    );
    await expect(tool.status).toHaveText('');
    await expectAccessible();
    await tool.word(64, 1).value.fill('1');
    await expect(tool.status).toHaveText('Enter applies, Esc restores');
    await page.keyboard.press('Enter');
    await expect(summary(page)).toContainText('1 of 64 bits set, 63 leading, 0 trailing zeros');
    await tool.word(16, 3).value.focus();
    await expect(summary(page)).toContainText('Int 16 word 3 0 of 16 bits set');
  });

  test('gives way to a bit and comes back', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, PI);
    await tool.word(64, 1).bits.hover();
    await expect(tool.status).toContainText('weight');
    await expect(summary(page)).toBeHidden();
    await tool.converters.hover();
    await expect(summary(page)).toBeVisible();
  });

  test('keeps what is being typed when it is pressed, and gives the focus back', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, PI);
    const { value } = tool.word(64, 1);
    await expect(value).toBeFocused();
    await summary(page).click();
    await expect(copyButton(page, 'Unsigned')).toBeFocused();
    await page.keyboard.press('Escape');
    await expect(inspector(page)).toBeHidden();
    await expect(value).toBeFocused();
    await value.fill('77');
    await page.keyboard.press('Control+i');
    await expect(copyButton(page, 'Unsigned')).toBeFocused();
    await page.keyboard.press('Control+i');
    await expect(value).toBeFocused();
    await expect(value).toHaveValue('77');
  });
});

test.describe('the inspector of a word', () => {
  test('opens by Ctrl+I and reads the word in every way that fits it', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, PI);
    await page.keyboard.press('Control+i');
    await expect(inspector(page)).toBeVisible();
    await expect(reading(page, 'Exact decimal')).toHaveText('3.141592653589793115997963468544185161590576171875');
    await expect(reading(page, 'C99')).toHaveText('0x1.921fb54442d18p+1');
    await expect(reading(page, 'Next value up')).toHaveText('3.1415926535897936 (0x400921fb54442d19)');
    await expect(reading(page, 'Highest set bit')).toHaveText('62');
    await expect(reading(page, 'IPv4')).toHaveCount(0);
    await expectAccessible();
  });

  test('copies each line with one press, and stays', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, PI);
    await page.keyboard.press('Control+i');
    for (const key of ['ArrowDown', 'ArrowDown', 'Enter']) await page.keyboard.press(key);
    await expect.poll(() => clipboard(page)).toBe('0x400921fb54442d18');
    await expect(tool.status).toHaveText('Copied 18 characters');
    await expect(copyButton(page, 'Hexadecimal')).toBeFocused();
    await page.keyboard.press('End');
    await expect(copyButton(page, 'Read as Gray code')).toBeFocused();
    await page.keyboard.press('c');
    await expect(copyButton(page, 'C99 hexadecimal float')).toBeFocused();
    await page.keyboard.press('Space');
    await expect.poll(() => clipboard(page)).toBe('0x1.921fb54442d18p+1');
    await page.keyboard.press('Tab');
    await expect(inspector(page)).toBeHidden();
  });

  test('is in the menu of a word and among the commands', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0xc0a80001', intResolution: 32 });
    await tool.word(32, 1).bits.focus();
    await page.keyboard.press('Shift+F10');
    await page.getByRole('menuitem', { name: 'Inspect…', exact: true }).click();
    const dialog = inspector(page, 'Int 32 word 1');
    await expect(dialog.getByText('192.168.0.1', { exact: true })).toBeVisible();
    await page.keyboard.press('Escape');
    await expect(tool.word(32, 1).bits).toBeFocused();
    await page.keyboard.press('Control+k');
    await page.keyboard.type('inspect');
    await page.keyboard.press('Enter');
    await expect(dialog).toBeVisible();
  });

  test('follows undo, and closes when the word is gone', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x41', intResolution: 64 });
    await tool.choose(tool.resolution, '128');
    await tool.word(64, 2).value.fill('5');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Control+i');
    const dialog = inspector(page, 'Int 64 word 2');
    const unsigned = dialog.locator('dt', { hasText: 'Unsigned' }).locator('+ dd');
    await expect(unsigned).toHaveText('5');
    await page.keyboard.press('Control+z');
    await expect(unsigned).toHaveText('0');
    await page.keyboard.press('Control+z');
    await expect(dialog).toBeHidden();
  });

  test('has room for 1024 bits in a window of 320 pixels', async ({ page, enter, expectAccessible }) => {
    await page.setViewportSize({ width: 320, height: 480 });
    const tool = new WordsTool(page);
    const all = (1n << 1024n) - 1n;
    await tool.open(enter, { int: `0x${all.toString(16)}`, intResolution: 1024 });
    await page.keyboard.press('Control+i');
    const dialog = inspector(page, 'Int 1024 word 1');
    await expect(dialog.getByText(all.toString(), { exact: true })).toBeVisible();
    const { width, scroll } = await dialog.evaluate((element) => ({
      width: element.clientWidth,
      scroll: element.scrollWidth,
    }));
    expect(scroll).toBe(width);
    const box = (await dialog.boundingBox())!;
    expect(Math.min(box.x, box.y)).toBeGreaterThanOrEqual(0);
    expect(box.x + box.width).toBeLessThanOrEqual(320);
    expect(box.y + box.height).toBeLessThanOrEqual(480);
    await expectAccessible();
    await page.keyboard.press('End');
    await expect(dialog.getByRole('button', { name: 'Copy Read as Gray code' })).toBeInViewport();
  });

  test('scrolls a float of thousands of digits within its line, by keyboard, too', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x1', intResolution: 128 });
    await page.keyboard.press('Control+i');
    const exact = inspector(page, 'Int 128 word 1').locator('dt', { hasText: 'Exact decimal' }).locator('+ dd');
    await expect(exact).toHaveText(/^0\.0+6475175\d+5$/);
    expect((await exact.boundingBox())!.height).toBeLessThan(150);
    await expectAccessible();
    await page.keyboard.press('Tab');
    await expect(exact).toBeFocused();
    await page.keyboard.press('End');
    await expect.poll(() => exact.evaluate((element) => element.scrollTop)).toBeGreaterThan(500);
  });
});
