import type { Locator, Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 800, height: 600 } });

const HINT = 'Enter applies, Esc restores';

const overlaps = async (page: Page, a: Locator, b: Locator) => {
  // It unfolds: wait until it is where it stays.
  await page.waitForFunction(() => document.getAnimations().every(({ playState }) => playState === 'finished'));
  const [first, second] = [(await a.boundingBox())!, (await b.boundingBox())!];
  const apart = (start: 'x' | 'y', size: 'width' | 'height') =>
    first[start] + first[size] <= second[start] || second[start] + second[size] <= first[start];
  return !apart('x', 'width') && !apart('y', 'height');
};

test.describe('a text that differs from the word', () => {
  test('is marked, with what can be done in the status line, until it is taken over or goes', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const { value } = tool.word(64, 1);
    const edge = () => value.evaluate((field) => getComputedStyle(field).boxShadow);
    const plain = await edge();
    await value.fill('7');
    expect(await edge()).not.toBe(plain);
    await expect(tool.status).toHaveText(HINT);
    await value.fill('5');
    await expect(tool.status).not.toHaveText(HINT);
    await value.fill('7');
    await page.keyboard.press('Escape');
    await expect(tool.status).not.toHaveText(HINT);
    expect(await edge()).toBe(plain);
    await enterText(value, '8');
    await expect(tool.status).not.toHaveText(HINT);
    expect(await edge()).toBe(plain);
    await value.fill('9');
    await page.keyboard.press('Tab');
    await expect(tool.status).not.toHaveText(HINT);
    expect(await edge()).toBe(plain);
  });
});

test.describe('a refused text', () => {
  test('marks its field with the reason until it changes', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const { value } = tool.word(64, 1);
    await enterText(value, '-1');
    await expect(value).toHaveAttribute('aria-invalid', 'true');
    await expect(value).toHaveAccessibleDescription(/out of range/);
    await expectAccessible();
    await page.keyboard.press('Backspace');
    await expect(value).not.toHaveAttribute('aria-invalid');
    await expect(value).toHaveAccessibleDescription('');
  });

  test('its notification closes with Escape and with a button', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const { value } = tool.word(64, 1);
    await enterText(value, '-1');
    await tool.warning.getByRole('button', { name: 'Close the notification' }).click();
    await expect(tool.warning).toHaveCount(0);
    await enterText(value, '-2');
    await expect(tool.warning).toHaveCount(1);
    await page.keyboard.press('Escape');
    await expect(tool.warning).toHaveCount(0);
    await expect(value).toHaveValue('5');
  });

  test('its notification does not cover the field, wherever that is', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    for (const [bits, number] of [
      [64, 1],
      [16, 1],
      [8, 1],
    ] as const) {
      await page
        .getByRole('group', { name: 'Rows', exact: true })
        .getByRole('button', { name: `I${bits}, go to` })
        .press('Enter');
      const field = tool.word(bits, number).base(16);
      await enterText(field, 'XYZ');
      await expect(tool.warning, `${bits} bits`).toHaveCount(1);
      expect(await overlaps(page, tool.warning, field), `${bits} bits`).toBe(false);
      await page.keyboard.press('Escape');
      await expect(tool.warning).toHaveCount(0);
    }
  });

  test('is read in the base of its prefix at the press of a button', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const { value } = tool.word(32, 1);
    await enterText(value, '0xC0000094');
    await tool.warning.hover(); // it stays for as long
    await expectAccessible();
    await tool.warning.getByRole('button', { name: 'Read as base 16' }).click();
    await expect(value).toHaveValue('3221225620');
    await expect(value).toBeFocused();
    await expect(value).not.toHaveAttribute('aria-invalid');
    await expect(tool.warning).toHaveCount(0);
  });

  test('is read as a float, where it is one, by Alt and Enter', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    await enterText(tool.word(64, 1).value, '3.14');
    await expect(tool.warning.getByRole('button')).toContainText(['Read as float']);
    await page.keyboard.press('Alt+Enter');
    await expect(tool.word(64, 1).base(16)).toHaveValue('40091EB851EB851F');
    await expect(tool.warning).toHaveCount(0);
    await page.keyboard.press('Control+z');
    await expect(tool.word(64, 1).value).toHaveValue('5');
  });

  test('is given a wider sheet by Alt and Enter; one undo takes both back', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const digest = '9b'.repeat(32);
    await enterText(tool.word(64, 1).value, digest);
    await expect(tool.warning.getByRole('button', { name: 'Read as base 16, widen to 256' })).toBeVisible();
    await page.keyboard.press('Alt+Enter');
    await expect(tool.warning).toHaveCount(0);
    await expect(tool.resolution).toContainText('256');
    await expect(tool.word(256, 1).base(16)).toHaveValue(digest.toUpperCase());
    await page.keyboard.press('Control+z');
    await expect(tool.resolution).toContainText('64');
    await expect(tool.word(64, 1).value).toHaveValue('5');
  });

  test('a number too wide is offered the next width that has room', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    await enterText(tool.word(64, 1).value, `${2n ** 64n}`);
    await tool.warning.getByRole('button', { name: 'Widen to 128' }).click();
    await expect(tool.word(128, 1).value).toHaveValue(`${2n ** 64n}`);
    // A word within its sheet gets no wider by that.
    await enterText(tool.word(64, 1).value, `${2n ** 64n}`);
    await expect(tool.warning).toHaveCount(1);
    await expect(tool.warning.getByRole('button')).toHaveCount(1);
  });
});
