import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

test.describe('an operation that is typed', () => {
  test('shows what it would make, applies with Enter as one step, and repeats elsewhere', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0x81 });
    const { value, bits } = tool.word(64, 1);
    await bits.focus();
    await page.keyboard.press('Control+k');
    await expectAccessible();
    await page.keyboard.type('shl 1');
    await expect(page.locator('mark')).toHaveText(['1', '0', '2']);
    await expectAccessible();
    await expect(value).toHaveValue(`129`);
    await page.keyboard.press('Enter');
    await expect(value).toHaveValue(`258`);
    await expect(tool.status).toHaveText('Done: shl 1');
    await expect(bits).toBeFocused();
    await page.keyboard.press('Control+.');
    await expect(value).toHaveValue(`516`);
    await tool.word(8, 2).value.focus();
    await page.keyboard.press('Control+.');
    await expect(value).toHaveValue(`1028`);
    await page.keyboard.press('Control+z');
    await expect(tool.status).toHaveText('Undid shl 1, Int 8 word 2');
    await page.keyboard.press('Control+z');
    await page.keyboard.press('Control+z');
    await expect(value).toHaveValue(`129`);
  });

  test('is asked for beside its word, also where all is small', async ({ page, enter }) => {
    await page.setViewportSize({ width: 800, height: 600 });
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 3 });
    for (const bits of [64, 16]) {
      const { bits: field } = tool.word(bits, 1);
      await field.focus();
      await page.keyboard.press('Control+k');
      const form = page.getByRole('dialog');
      for (const text of ['', 'ro']) {
        await page.keyboard.type(text);
        const [word, box] = [(await field.boundingBox())!, (await form.boundingBox())!];
        const isBeside = box.y >= word.y + word.height || box.y + box.height <= word.y;
        expect(isBeside, `Int ${bits}, "${text}"`).toBe(true);
        expect(Math.min(Math.abs(box.y - word.y - word.height), Math.abs(box.y + box.height - word.y))).toBeLessThan(
          12,
        );
      }
      await page.keyboard.press('Escape');
    }
  });

  test('outlines the bits that would change, and leaves no trace with Escape', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 32 });
    const { value, bits } = tool.word(32, 1);
    const pixels = () => bits.evaluate((canvas: HTMLCanvasElement) => canvas.toDataURL());
    await value.focus();
    const before = await pixels();
    await page.keyboard.press('Control+k');
    await page.keyboard.type('not');
    await expect.poll(pixels).not.toBe(before);
    await page.keyboard.press('Escape');
    await expect.poll(pixels).toBe(before);
    await expect(value).toHaveValue('1');
    await expect(value).toBeFocused();
    await expect(page.getByRole('button', { name: 'Save', exact: true })).toBeDisabled();
  });

  test('says what is wrong where it is typed, and when bits are lost', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 3 });
    const { value, bits } = tool.word(64, 1);
    await bits.focus();
    await page.keyboard.press('Control+k');
    await page.keyboard.type('ror 64');
    await expect(page.getByText('Count must be 0 to 63')).toBeVisible();
    await page.keyboard.press('Enter');
    await expect(value).toHaveValue('3');
    await page.keyboard.press('Control+z');
    await expect(value).toHaveValue('3');
    await page.keyboard.press('Control+a');
    await page.keyboard.type('shr 1');
    await expect(page.getByText('Bits are lost')).toBeVisible();
    await page.keyboard.press('Enter');
    await expect(tool.status).toHaveText('Done: shr 1; bits were lost');
    await expect(value).toHaveValue('1');
  });

  test('is completed from a list, from what was applied before, and with the names of sheets', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0xff, displayName: 'Number A' }, { int: 0x0f, displayName: 'Number B' });
    const { value } = tool.word(64, 1);
    await value.focus();
    await page.keyboard.press('Control+k');
    const box = page.getByRole('combobox', { name: 'Operation' });
    await page.keyboard.type('x');
    await page.keyboard.press('Tab');
    await expect(box).toHaveValue('xor ');
    await page.keyboard.type('@n');
    await expect(page.getByRole('option')).toHaveText(['Number B']);
    await page.keyboard.press('Tab');
    await expect(box).toHaveValue('xor @"Number B"');
    await page.keyboard.press('Enter');
    await expect(value).toHaveValue(`240`);
    await page.keyboard.press('Control+k');
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('Enter');
    await expect(value).toHaveValue(`255`);
  });

  test('offers the commands of the menu under the same names', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 32 });
    const { value } = tool.word(32, 1);
    await value.focus();
    await page.keyboard.press('Control+k');
    await page.keyboard.type('swap b');
    await expect(page.getByRole('option')).toHaveText([/Swap bytes/]);
    await page.keyboard.press('Enter');
    await expect(value).toHaveValue(`16777216`);
    await page.keyboard.press('Control+k');
    await page.keyboard.type('all bits to 1');
    await page.keyboard.press('Enter');
    await expect(value).toHaveValue(`4294967295`);
  });

  test('is listed with its keys', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1 });
    await page.getByRole('button', { name: 'Keys' }).click();
    const list = page.getByRole('dialog', { name: 'Keys' });
    for (const text of ['Ctrl+K', 'Operation…', 'Ctrl+.', 'Shift+F10', 'Ctrl+Shift+C', 'Ctrl+Shift+V'])
      await expect(list).toContainText(text);
  });
});
