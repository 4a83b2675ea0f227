import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

const FIRST = { id: 'a', displayName: 'First', int: '0xff', intResolution: 256 };
/** Differs in bits 3, 64 and 190. */
const SECOND = {
  id: 'b',
  displayName: 'Second',
  int: `0x${((1n << 190n) | (1n << 64n) | 0xf7n).toString(16)}`,
  intResolution: 256,
};
const NARROW = { id: 'c', displayName: 'Narrow', int: '0xff', intResolution: 64 };

const chooser = (page: Page) => page.getByRole('menu', { name: 'Compare with' });
const differences = (page: Page, text: string) => page.getByText(text, { exact: true });

async function compare(page: Page, other: string) {
  await page.keyboard.press('Control+d');
  await chooser(page).getByRole('menuitem', { name: other }).click();
}

/** Leaves what the status line reports there until something else ends it. */
const keepReports = (page: Page) =>
  page.addInitScript(() => {
    const { setTimeout } = window;
    const withoutLifetime = (act: () => void, delay?: number) => (delay === 5000 ? 0 : setTimeout(act, delay));
    Object.assign(window, { setTimeout: withoutLifetime });
  });

/** Compares the narrower sheet with the wider one; the report stays. */
async function reportFromNarrow(page: Page, enter: () => Promise<void>): Promise<WordsTool> {
  await keepReports(page);
  const tool = new WordsTool(page);
  await tool.open(enter, NARROW, SECOND);
  await compare(page, 'Second');
  await expect(tool.status).toHaveText(/beyond the 64 bits of this sheet$/);
  return tool;
}

const DIFFERENCE = 0xff9e64;
const RANGE = 0xff8ad8;

/** Pixels of a bit field in the colour that differences, or a range, are outlined in. */
const outlinedPixels = (tool: WordsTool, bits: number, word: number, color = DIFFERENCE) =>
  tool.word(bits, word).bits.evaluate((canvas: HTMLCanvasElement, wanted) => {
    const { data } = canvas.getContext('2d')!.getImageData(0, 0, canvas.width, canvas.height);
    let count = 0;
    for (let at = 0; at < data.length; at += 4) {
      if ((data[at]! << 16) + (data[at + 1]! << 8) + data[at + 2]! === wanted) count++;
    }
    return count;
  }, color);

test.describe('comparing two sheets', () => {
  test('outlines the bits that differ in every row, and says how many and where', async ({ page, enter }) => {
    await page.setViewportSize({ width: 1280, height: 1400 });
    const tool = new WordsTool(page);
    await tool.open(enter, FIRST, SECOND);
    await page.keyboard.press('Control+d');
    await expect(chooser(page).getByRole('menuitem', { name: 'Second' })).toBeFocused();
    await expect(chooser(page)).toContainText('3 bits');
    await page.keyboard.press('Enter');
    await expect(tool.status).toHaveText('3 bits differ, first at 3, last at 190');
    for (const bits of [256, 128, 64, 32]) {
      await expect.poll(() => outlinedPixels(tool, bits, 1), `Int ${bits}`).toBeGreaterThan(0);
    }
    await expect(tool.status).toHaveText('');
    await expect(differences(page, '3 bits differ, first at 3, last at 190')).toBeVisible();
    await page.keyboard.press('Escape');
    await expect(differences(page, '3 bits differ, first at 3, last at 190')).toBeHidden();
    expect(await outlinedPixels(tool, 256, 1)).toBe(0);
  });

  test('goes from difference to difference by F3 and Shift+F3, around both ends', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, FIRST, SECOND);
    await compare(page, 'Second');
    for (const [key, place, bit] of [
      ['F3', 1, 3],
      ['F3', 2, 64],
      ['F3', 3, 190],
      ['F3', 1, 3],
      ['Shift+F3', 3, 190],
      ['Shift+F3', 2, 64],
    ] as const) {
      await page.keyboard.press(key);
      await expect(tool.status).toHaveText(`Difference ${place} of 3: bit ${bit}`);
      await expect(tool.word(256, 1).bits).toBeFocused();
    }
    // The search goes on from where the keyboard is.
    for (const step of ['ArrowRight', 'ArrowRight']) await page.keyboard.press(step);
    await expect(tool.status).toContainText('bit 62 of word 1');
    await page.keyboard.press('Shift+F3');
    await expect(tool.status).toHaveText('Difference 1 of 3: bit 3');
    await page.keyboard.press('Space');
    await expect(tool.word(256, 1).value).toHaveValue('247');
    await page.keyboard.press('F3');
    await expect(tool.status).toHaveText('Difference 1 of 2: bit 64');
  });

  test('stays in the row that the keyboard is in', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { ...FIRST, intResolution: 64 }, { ...NARROW, int: '0x1000000ff' });
    await tool.word(32, 1).value.focus();
    await compare(page, 'Narrow');
    await page.keyboard.press('F3');
    await expect(tool.word(32, 2).bits).toBeFocused();
    await expect(tool.status).toHaveText('Difference 1 of 1: bit 32');
  });

  test('is the same from the other sheet, follows edits there, and ends when one of them goes', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, FIRST, SECOND);
    await compare(page, 'Second');
    await page.getByRole('tab', { name: 'Second' }).click();
    await expect(differences(page, '3 bits differ, first at 3, last at 190')).toBeVisible();
    await tool.word(256, 1).value.fill('255');
    await page.keyboard.press('Enter');
    await expect(differences(page, 'No bit differs')).toBeVisible();
    await page.keyboard.press('Control+z');
    await expect(differences(page, '3 bits differ, first at 3, last at 190')).toBeVisible();
    await page.getByRole('button', { name: 'Close First' }).click();
    await expect(differences(page, '3 bits differ, first at 3, last at 190')).toBeHidden();
  });

  test('reports at once what an edit or another sheet makes of it', async ({ page, enter }) => {
    const tool = await reportFromNarrow(page, enter);
    await page.getByRole('tab', { name: 'Second' }).click();
    await expect(differences(page, '3 bits differ, first at 3, last at 190')).toBeVisible();
    await tool.word(256, 1).value.fill('255');
    await page.keyboard.press('Enter');
    await expect(differences(page, 'No bit differs')).toBeVisible();
  });

  test('reports at once how many differ beyond another resolution', async ({ page, enter }) => {
    const tool = await reportFromNarrow(page, enter);
    await tool.resolution.click();
    await page.getByRole('option', { name: '128', exact: true }).click();
    await expect(page.getByText(/1 of them beyond the 128 bits of this sheet$/)).toBeVisible();
  });

  test('of different widths counts the bits that one of them does not have, and goes to those that are there', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, NARROW, SECOND);
    await compare(page, 'Second');
    await expect(tool.status).toHaveText(
      '3 bits differ, first at 3, last at 190; 2 of them beyond the 64 bits of this sheet',
    );
    for (const key of ['F3', 'F3']) {
      await page.keyboard.press(key);
      await expect(tool.status).toHaveText('Difference 1 of 1: bit 3');
    }
  });

  test('goes on beside bits that are chosen, which look different; Escape ends these first', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, NARROW, SECOND);
    const { bits } = tool.word(64, 1);
    const outlined = async () => [await outlinedPixels(tool, 64, 1), await outlinedPixels(tool, 64, 1, RANGE)];
    const seen = async (difference: boolean, range: boolean) =>
      expect.poll(async () => (await outlined()).map((count) => count > 0)).toEqual([difference, range]);
    await compare(page, 'Second');
    await seen(true, false);
    await page.keyboard.press('Control+g');
    await page.keyboard.type('5:2'); // bit 3 differs
    await page.keyboard.press('Enter');
    await expect(tool.status).toContainText('[5:2] 4 bits = 0xF');
    await expect(page.getByText('3 bits differ, first at 3, last at 190')).toBeVisible();
    await seen(true, true);
    await expectAccessible();
    await page.keyboard.press('Delete');
    await expect(tool.word(64, 1).base(16)).toHaveValue('C3');
    await expect(page.getByText('5 bits differ, first at 2, last at 190')).toBeVisible();
    await page.keyboard.press('Escape');
    await seen(true, false);
    await expect(bits).toBeFocused();
    await page.keyboard.press('Escape');
    await seen(false, false);
    await expect(page.getByText('bits differ')).toBeHidden();
  });

  test('with no other sheet says so, and F3 is the browser’s own while nothing is compared', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, NARROW);
    await page.keyboard.press('Control+d');
    await expect(tool.status).toHaveText('There is no other sheet to compare with');
    const isPrevented = await page.evaluate(
      () =>
        !document.activeElement!.dispatchEvent(
          new KeyboardEvent('keydown', { key: 'F3', bubbles: true, cancelable: true }),
        ),
    );
    expect(isPrevented).toBe(false);
  });

  test('leaves a text as it is that is being typed, marked as not taken over', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, NARROW, SECOND);
    const { value, group } = tool.word(64, 1);
    const kept = async () => {
      await expect(chooser(page)).toBeHidden();
      await expect(value).toBeFocused();
      await expect(value).toHaveValue('1234');
      await expect(group.locator('[data-altered]')).toHaveCount(1);
      expect(await value.evaluate((field: HTMLInputElement) => field.selectionStart)).toBe(4);
    };
    await value.fill('1234');
    await page.keyboard.press('Control+d');
    await page.keyboard.press('Escape');
    await kept();
    await expect(tool.status).toHaveText('Enter applies, Esc restores');
    await page.keyboard.press('Control+d');
    await page.keyboard.press('Enter');
    await kept();
    await page.keyboard.press('Enter');
    await expect(tool.word(64, 1).base(16)).toHaveValue('4D2');
  });

  test('gives the focus back when nothing is chosen, and is among the commands of a word', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, NARROW, SECOND);
    const { value } = tool.word(64, 1);
    await expect(value).toBeFocused();
    await page.keyboard.press('Control+d');
    await page.keyboard.press('Escape');
    await expect(chooser(page)).toBeHidden();
    await expect(value).toBeFocused();
    await page.keyboard.press('Control+k');
    await page.keyboard.type('compare');
    await page.keyboard.press('Enter');
    await expect(chooser(page)).toBeVisible();
    await expectAccessible();
    await page.keyboard.press('Enter');
    await page.keyboard.press('Shift+F10');
    await page.getByRole('menuitem', { name: 'Go to the next difference', exact: true }).click();
    await expect(tool.status).toHaveText('Difference 1 of 1: bit 3');
    await page.keyboard.press('Shift+F10');
    await page.getByRole('menuitem', { name: 'End the comparison', exact: true }).click();
    await page.keyboard.press('Shift+F10');
    await expect(page.getByRole('menuitem', { name: 'Compare with…', exact: true })).toBeVisible();
    await expect(page.getByRole('menuitem', { name: 'End the comparison', exact: true })).toBeHidden();
  });
});

test.describe('the menu of a tab', () => {
  const menu = (page: Page) => page.getByRole('menu', { name: 'Open the menu of the sheet' });
  const item = (page: Page, name: string) => menu(page).getByRole('menuitem', { name, exact: true });

  test('compares that sheet with another one, which is shown then', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, FIRST, SECOND, NARROW);
    await page.getByRole('tab', { name: 'Narrow' }).click({ button: 'right' });
    await expect(item(page, 'Rename the sheet')).toBeFocused();
    await expectAccessible();
    await item(page, 'Compare with…').click();
    await chooser(page).getByRole('menuitem', { name: 'First' }).click();
    await expect(page.getByRole('tab', { selected: true })).toHaveText('Narrow');
    await expect(differences(page, 'No bit differs').first()).toBeVisible();
    await expect(tool.status).toHaveText('');
    await expect(differences(page, 'No bit differs')).toBeVisible();
  });

  for (const key of ['Shift+F10', 'ContextMenu']) {
    test(`opens by ${key}, renames, moves and closes, and gives the focus back`, async ({ page, enter }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, FIRST, SECOND, NARROW);
      const tabs = page.getByRole('tab');
      await tabs.first().focus();
      await page.keyboard.press(key);
      await page.keyboard.press('Escape');
      await expect(menu(page)).toBeHidden();
      await expect(tabs.first()).toBeFocused();
      await page.keyboard.press(key);
      await item(page, 'Move the sheet to the right').click();
      await expect(tabs).toHaveText(['Second', 'First', 'Narrow']);
      await expect(page.getByRole('tab', { name: 'First' })).toBeFocused();
      await page.keyboard.press(key);
      await item(page, 'Rename the sheet').click();
      await expect(page.getByRole('textbox', { name: 'Sheet name' })).toBeFocused();
      await page.keyboard.press('Escape');
      await page.keyboard.press(key);
      await item(page, 'Close the sheet').click();
      await expect(tabs).toHaveText(['Second', 'Narrow']);
    });
  }

  test('comes by the right button without Shift only, and not in the editor of a name', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, FIRST, SECOND);
    await page.getByRole('tab', { name: 'First' }).click({ button: 'right', modifiers: ['Shift'] });
    await expect(menu(page)).toBeHidden();
    await page.keyboard.press('Escape');
    await page.getByRole('tab', { name: 'First' }).dblclick();
    await page.getByRole('textbox', { name: 'Sheet name' }).click({ button: 'right' });
    await expect(menu(page)).toBeHidden();
  });
});
