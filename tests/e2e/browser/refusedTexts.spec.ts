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

  test('of a million digits shows both ends and is kept whole', async ({ page, enter, context }) => {
    await context.grantPermissions(['clipboard-read', 'clipboard-write']);
    const copied = () => page.evaluate(() => navigator.clipboard.readText());
    const put = (text: string) => page.evaluate((content) => navigator.clipboard.writeText(content), text);
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const field = tool.word(64, 1).base(16);
    const keys = page.keyboard;
    const isKept = async (text: string) => {
      await keys.press('Control+a');
      await keys.press('Control+c');
      await expect.poll(async () => (await copied()) === text).toBe(true);
    };
    const zeros = '0'.repeat(1e6);
    await field.press('Control+a');
    await put(`${zeros}ab`);
    await keys.press('Control+v');
    await expect(field).toHaveValue(`${'0'.repeat(24)}…(999954)…${'0'.repeat(22)}ab`);

    // Typed and pasted at both of its ends, cut, and taken back.
    await keys.press('End');
    await keys.type('cd');
    await isKept(`${zeros}abcd`);
    await put('1');
    await keys.press('Home');
    await keys.press('Control+v');
    await put(`${zeros}\n77`);
    await keys.press('End');
    await keys.press('Control+v');
    const whole = `1${zeros}abcd${zeros}77`;
    await isKept(whole);
    await keys.press('Control+a');
    await keys.press('Control+x');
    await expect(field).toHaveValue('');
    await keys.press('Control+z');
    await isKept(whole);

    // Another text of the same length has a mark of its own, so that undo finds each again.
    await put(`${zeros.slice(100)}${'1'.repeat(102)}`);
    await keys.press('Control+a');
    await keys.press('Control+v');
    await isKept(`${zeros.slice(100)}${'1'.repeat(102)}`);
    await keys.press('Control+z');
    await isKept(whole);

    await keys.press('Enter');
    await expect(tool.warning).toHaveText(/^Value 10{23}…0{6}77 is out of range/);
    await expect(field).toHaveAccessibleDescription(/^Value 10{23}…0{6}77 is out of range/);
    await keys.press('Control+a');
    await put(`${zeros}ab`);
    await keys.press('Control+v');
    await expect(field).not.toHaveAttribute('aria-invalid');
    await keys.press('End');
    await keys.type('cd');
    await keys.press('Enter');
    await expect(field).toHaveValue('ABCD');
    await expect(tool.word(64, 1).value).toHaveValue('43981');

    await keys.press('Control+a');
    await keys.press('Control+v');
    await keys.press('Escape');
    await expect(field).toHaveValue('ABCD');
    await keys.press('Control+a');
    await keys.press('Control+v');
    await keys.press('Tab');
    await expect(field).toHaveValue('ABCD');
  });
});
