import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

const focused = (page: Page) =>
  page.evaluate(() => {
    const { activeElement } = document;
    return activeElement?.getAttribute('aria-label') ?? activeElement?.textContent;
  });

/** Presses Tab until the focus is where it began. */
async function countStops(page: Page): Promise<number> {
  const first = await page.evaluateHandle(() => document.activeElement);
  for (let stops = 1; stops < 1000; stops++) {
    await page.keyboard.press('Tab');
    if (await first.evaluate((element) => document.activeElement === element)) return stops;
  }
  throw new Error('The focus never came back');
}

test.describe('few stops', () => {
  test.use({ viewport: { width: 1280, height: 1400 } });

  test('64 bits with every row in view have fewer than 100 stops of the Tab key', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await expect(tool.word(64, 1).value).toBeFocused();
    const stops = await countStops(page);
    expect(stops).toBeGreaterThan(40);
    expect(stops).toBeLessThan(100);
  });
});

test.describe('bars', () => {
  test.use({ viewport: { width: 800, height: 600 } });

  test('are one stop each, also where a button is disabled', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await page.getByRole('button', { name: 'New', exact: true }).focus();
    for (const name of ['Open', 'Save As', 'Close']) {
      await page.keyboard.press('ArrowRight');
      expect(await focused(page)).toBe(name);
    }
    await page.keyboard.press('Tab');
    await expect(page.getByRole('tab')).toBeFocused();
    await page.keyboard.press('ArrowRight');
    expect(await focused(page)).toBe('Add sheet');
    await page.keyboard.press('ArrowLeft');
    await expect(page.getByRole('tab')).toBeFocused();
    await page.keyboard.press('Tab');
    await expect(tool.resolution).toBeFocused();
    await page.keyboard.press('ArrowRight');
    await expect(tool.scrollLock).toBeFocused();
    await page.keyboard.press('Tab');
    await page.keyboard.press('Shift+Tab');
    await expect(tool.scrollLock).toBeFocused();
    await page.keyboard.press('Shift+Tab');
    await page.keyboard.press('Shift+Tab');
    expect(await focused(page)).toBe('Close');
  });

  test('Save that became disabled leaves the bar its stop', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await page.keyboard.type('1');
    await page.keyboard.press('Enter');
    const save = page.getByRole('button', { name: 'Save', exact: true });
    await save.focus();
    await page.keyboard.press('Enter');
    await expect(save).toBeDisabled();
    await page.getByRole('tab').focus();
    await page.keyboard.press('Shift+Tab');
    await expect(page.getByRole('toolbar', { name: 'Document' }).locator(':focus')).toHaveCount(1);
  });

  test('F6 goes from bar to bar and to the sheet, and back to what had the focus there', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.word(64, 1).base(16).focus();
    const stops: (string | null | undefined)[] = [];
    for (let press = 0; press < 4; press++) {
      await page.keyboard.press('F6');
      stops.push(await focused(page));
    }
    expect(stops).toEqual(['New', 'Number A', expect.stringContaining('Resolution'), 'Base 16']);
    await page.keyboard.press('Shift+F6');
    await expect(tool.resolution).toBeFocused();
  });

  test('Ctrl+PageDown and Ctrl+PageUp change sheets', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { id: 'one', int: 1 }, { id: 'two', displayName: 'Number B', int: 2 });
    const { value } = tool.word(64, 1);
    await expect(value).toBeFocused();
    await page.keyboard.press('Control+PageDown');
    await expect(value).toHaveValue('2');
    await expect(value).toBeFocused();
    await page.keyboard.press('Control+PageDown');
    await expect(value).toHaveValue('2');
    await page.keyboard.press('Control+PageUp');
    await expect(value).toHaveValue('1');
  });

  test('after the last sheet is closed the keyboard is on what can be done next', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await page.getByRole('tab').focus();
    await page.keyboard.press('Delete');
    await expect(page.getByRole('link', { name: 'Create Document' })).toBeFocused();
    await page.keyboard.press('Enter');
    await expect(page.getByRole('alertdialog')).toBeVisible();
  });
});
