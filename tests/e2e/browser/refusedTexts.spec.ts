import type { Locator } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

/** Lines of text that a message takes on the screen. */
function linesOf(message: Locator): Promise<number> {
  return message.evaluate((element) => {
    const tops = new Set<number>();
    const texts = document.createTreeWalker(element, NodeFilter.SHOW_TEXT);
    for (let text = texts.nextNode(); text; text = texts.nextNode()) {
      const range = document.createRange();
      range.selectNodeContents(text);
      for (const { top } of range.getClientRects()) tops.add(Math.round(top));
    }
    return tops.size;
  });
}

test.describe('a refused text', () => {
  test('warns once, however often Enter is pressed', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const { value } = tool.word(8, 1);
    await value.fill('256');
    for (let press = 0; press < 30; press++) await value.press('Enter');
    await expect(tool.warning).toHaveCount(1);
    await expect(tool.warning).toHaveText('Value 256 is out of range. Must be between 0 and 255');
    await expect(tool.warning).toHaveCount(0, { timeout: 9000 });
  });

  for (const width of [800, 320]) {
    test(`has a warning of six lines at most in a window ${width} pixels wide`, async ({ page, enter }) => {
      await page.setViewportSize({ width, height: 600 });
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 0 });
      const word = tool.word(64, 1);
      for (const [field, text] of [
        [word.value, '7'.repeat(20_000)],
        [word.base(2), '1'.repeat(65)],
        [word.base(16), 'hello'],
      ] as const) {
        await enterText(field, text);
        await expect(tool.warning.last()).toBeVisible();
        await expect.poll(() => linesOf(tool.warning.last())).toBeGreaterThan(0);
        expect(await linesOf(tool.warning.last())).toBeLessThanOrEqual(6);
        // It slides in from the side.
        const isInside = async () => {
          const box = await tool.warning.last().boundingBox();
          return box !== null && box.x >= 0 && box.x + box.width <= width;
        };
        await expect.poll(isInside).toBe(true);
      }
    });
  }

  test('of a million digits is answered like any other', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    await tool.setConverters('A16', 'A62', 'FLOAT');
    const word = tool.word(32, 1);
    for (const [field, text, reason] of [
      [word.value, '7'.repeat(1e6), /^Value 7{24}…7{8} is out of range. Must be between 0 and 4294967295$/],
      [word.base(62), 'z'.repeat(1e6), /^Value Z{24}…Z{8} is out of range/],
      [word.float, `${'1'.repeat(1e6)}!`, 'Input is not a valid number'],
      [word.float, '1'.repeat(1e6), /^Value 1{24}…1{8} cannot be represented in 32-bit IEEE754 format \(overflow\)$/],
    ] as const) {
      await enterText(field, text);
      await expect(tool.warning.last()).toHaveText(reason);
      await field.press('Escape');
    }
    await expect(tool.word(64, 1).value).toHaveValue('5');
    await enterText(word.base(16), `${'0'.repeat(1e6)}ff`);
    await expect(tool.word(64, 1).value).toHaveValue('255');
  });
});
