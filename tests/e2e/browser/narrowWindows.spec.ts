import { expect, test } from '../support/browser/fixtures';
import { stubNativeHost } from '../support/browser/nativeHost';
import { WordsTool } from '../support/browser/words';

for (const width of [400, 320]) {
  test.describe(`a window ${width} pixels wide`, () => {
    test.use({ viewport: { width, height: 700 } });

    test('shows every operation above the fields, and loses nothing', async ({ page, enter, expectAccessible }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 5 });
      const word = tool.word(32, 1);
      const field = (await word.value.boundingBox())!;
      for (const button of await word.group.locator('[data-operation]').all()) {
        const box = (await button.boundingBox())!;
        expect(box.y + box.height).toBeLessThanOrEqual(field.y);
        expect(box.x + box.width).toBeLessThanOrEqual(field.x + field.width + 1);
        expect(Math.min(box.width, box.height)).toBeGreaterThanOrEqual(24);
      }
      for (const bar of ['Document', 'Sheet']) {
        for (const button of await page.getByRole('toolbar', { name: bar }).getByRole('button').all()) {
          await expect(button).toBeInViewport({ ratio: 1 });
        }
      }
      expect(await page.evaluate(() => document.documentElement.scrollWidth)).toBeLessThanOrEqual(width);
      await expectAccessible();
    });

    test('shows whole colors, converters and keys', async ({ page, enter }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: '0xfedcba98', intResolution: 32 });
      await page.getByRole('button', { name: 'C32, go to' }).press('Enter');
      for (const name of ['Red', 'Green', 'Blue', 'Alpha', 'Color']) {
        const field = tool.color(1).getByRole('textbox', { name, exact: true });
        expect(await field.evaluate((each) => each.scrollWidth - each.clientWidth), name).toBeLessThanOrEqual(0);
      }
      await tool.converters.click();
      for (const option of await page.getByRole('option').all()) {
        const { x, width: own } = (await option.boundingBox())!;
        expect(x).toBeGreaterThan(0);
        expect(x + own).toBeLessThan(width);
      }
      await page.keyboard.press('Escape');
      await page.keyboard.press('F1');
      const what = page.getByRole('definition').filter({ hasText: 'List and search all keys' });
      expect((await what.boundingBox())!.width).toBeGreaterThanOrEqual(120);
    });

    test('has bits of wide words at least 12 pixels wide', async ({ page, enter }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 1, intResolution: 128 });
      const { bits } = tool.word(128, 1);
      const box = (await bits.boundingBox())!;
      const perLine = width === 400 ? 16 : 8;
      await bits.hover({ position: { x: box.width - 8, y: box.height - 16 } });
      await expect(tool.status).toContainText('bit 0 of word 1');
      await bits.hover({ position: { x: box.width - 8, y: box.height - 16 - 24 } });
      await expect(tool.status).toContainText(`bit ${perLine} of word 1`);
      expect((box.width - 40) / perLine).toBeGreaterThanOrEqual(12);
    });
  });
}

for (const [width, height] of [
  [400, 300], // the program's own window at 200%
  [266, 200], // and at 300%
] as const) {
  test.describe(`a window of ${width} by ${height} pixels`, () => {
    test.use({ viewport: { width, height } });

    test('scrolls as a whole where bars leave no room for the words', async ({ page, enter, expectAccessible }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 5 });
      const { value, bits } = tool.word(64, 1);
      for (const part of [tool.resolution, tool.formats, value, bits, tool.status]) {
        await part.scrollIntoViewIfNeeded();
        await expect(part).toBeInViewport();
      }
      await value.focus();
      await page.keyboard.press('Control+a');
      await page.keyboard.type('7');
      await expect(value).toBeInViewport({ ratio: 0.9 });
      await page.keyboard.press('Enter');
      await expect(tool.word(64, 1).base(2)).toHaveValue('111');
      const tooWide = await page
        .getByRole('main')
        .evaluate((main) => Math.max(main.scrollWidth - main.clientWidth, document.body.scrollWidth - innerWidth));
      expect(tooWide).toBe(0);
      await expectAccessible();
    });
  });
}

test.describe('a window of 800 pixels', () => {
  test.use({ viewport: { width: 800, height: 600 } });

  test('has a text in base 2 whose lines are those of the bits', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: `0x${'f'.repeat(64)}`, intResolution: 256 });
    const lines = await tool
      .word(256, 1)
      .base(2)
      .evaluate((field: HTMLTextAreaElement) => {
        const { lineHeight, paddingTop } = getComputedStyle(field);
        return (field.scrollHeight - 2 * parseFloat(paddingTop)) / parseFloat(lineHeight);
      });
    expect(Math.round(lines)).toBe(256 / 32);
  });

  test('has no bar below a row with nothing to scroll, and one below the others', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { intResolution: 256 });
    // The browser of the stories shows no bars.
    const scrolling = (label: string) =>
      tool
        .row(label)
        .locator('[data-scroller="row"]')
        .evaluate((element) => getComputedStyle(element).overflowX);
    expect(await scrolling('Int 256')).toBe('hidden');
    await page.getByRole('button', { name: 'I128, go to' }).press('Enter');
    expect(await scrolling('Int 128')).toBe('auto');
  });

  test('shows the name of a document without a place in italics, also after a cancelled dialog', async ({
    page,
    enter,
  }) => {
    await stubNativeHost(page, { choices: [null, '/home/me/kept.words.tessary'] });
    await enter();
    await page.keyboard.press('Control+n');
    const name = page.getByRole('toolbar', { name: 'Document' }).getByText('words.tessary');
    const style = () => name.evaluate((element) => getComputedStyle(element).fontStyle);
    await expect(name).toHaveText('Untitled.words.tessary*');
    expect(await style()).toBe('italic');
    await page.keyboard.press('Control+Shift+s');
    await expect
      .poll(() => page.evaluate(() => (window as unknown as { hostCalls: unknown[] }).hostCalls.length))
      .toBe(1);
    expect(await style()).toBe('italic');
    await page.keyboard.press('Control+Shift+s');
    await expect(name).toHaveText('kept.words.tessary');
    expect(await style()).toBe('normal');
  });

  test('names the usual bases in the picker', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.converters.click();
    await expect(page.getByRole('listbox').getByText('16 hexadecimal')).toBeVisible();
  });
});
