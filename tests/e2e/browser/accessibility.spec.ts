import type { Page } from '@playwright/test';
import { withColors } from '../support/browser/contrast';
import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

/** What has the focus, with the contrast of its ring to what the ring lies on and beside; 0 where there is no ring. */
const ringOfFocus = (page: Page) =>
  withColors(page, ({ read, over, contrast, backgroundOf }) => {
    const element = document.activeElement!;
    const { outlineStyle, outlineWidth, outlineColor } = getComputedStyle(element);
    const name = `${element.role ?? element.tagName} ${element.ariaLabel ?? element.textContent.slice(0, 30)}`;
    const isRing = outlineStyle !== 'none' && parseFloat(outlineWidth) >= 2;
    const around = [backgroundOf(element), backgroundOf(element.parentElement)];
    return {
      name,
      isPage: element === document.body,
      contrast: isRing ? Math.min(...around.map((each) => contrast(over(read(outlineColor), each), each))) : 0,
    };
  });

/** Goes through the page by Tab, as far as `most` stops. @returns how many there were */
async function expectRings(page: Page, most: number): Promise<number> {
  const seen = new Set<string>();
  for (let stops = 0; stops < most; stops++) {
    await page.keyboard.press('Tab');
    const { name, isPage, contrast } = await ringOfFocus(page);
    if (isPage) continue;
    seen.add(name);
    expect(contrast, name).toBeGreaterThanOrEqual(3);
  }
  return seen.size;
}

test('the focus is seen at every stop, with a contrast of 3 to 1 to what is around it', async ({ page, enter }) => {
  await enter();
  expect(await expectRings(page, 12)).toBeGreaterThan(5);
  await page.goto(page.url());
  const tool = new WordsTool(page);
  await tool.open(enter, { int: 5 });
  await tool.word(64, 1).value.focus();
  await page.keyboard.press('Shift+F6');
  expect(await expectRings(page, 40)).toBeGreaterThan(6); // names of things, which words have in common
});

for (const width of [800, 320]) {
  test.describe(`at a width of ${width} pixels nothing keeps anybody out of`, () => {
    test.use({ viewport: { width, height: 600 } });

    test('the pages around the tool', async ({ page, enter, expectAccessible }) => {
      await enter();
      await expectAccessible();
      await page.keyboard.press('F1');
      await expect(page.getByRole('dialog')).toBeVisible();
      await expectAccessible();
      await page.keyboard.press('Escape');
      await page.getByRole('link', { name: 'Open Words Tool' }).click();
      await expect(page.getByText('Welcome to Words tool!')).toBeVisible();
      await expectAccessible();
    });

    for (const list of ['resolution', 'converters', 'formats'] as const) {
      test(`the list of ${list}`, async ({ page, enter, expectAccessible }) => {
        const tool = new WordsTool(page);
        await tool.open(enter, { int: 5 });
        await tool[list].click();
        await expect(page.getByRole('listbox')).toBeVisible();
        await expectAccessible();
      });
    }

    for (const [name, chord] of [
      ['the menu of a word', 'Shift+F10'],
      ['the command box', 'Control+k'],
      ['the readings of a word', 'Control+i'],
    ] as const) {
      test(name, async ({ page, enter, expectAccessible }) => {
        const tool = new WordsTool(page);
        await tool.open(enter, { int: 5 });
        await tool.word(64, 1).value.focus();
        await page.keyboard.press(chord);
        await expect(page.locator('[data-popup]')).toBeVisible();
        await expectAccessible();
      });
    }

    test('a refused field', async ({ page, enter, expectAccessible }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 5 });
      await enterText(tool.word(64, 1).value, '99999999999999999999999');
      await expect(tool.warning).toBeVisible();
      await expectAccessible();
    });

    test('a sheet that is being renamed', async ({ page, enter, expectAccessible }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 5 }, { int: 6, displayName: 'Number B' });
      await page.getByRole('tab', { name: 'Number B' }).focus();
      await page.keyboard.press('F2');
      await expect(page.getByRole('textbox', { name: /name/i })).toBeFocused();
      await expectAccessible();
    });

    test('the question about unsaved changes', async ({ page, enter, expectAccessible }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 5 });
      await enterText(tool.word(64, 1).value, '7');
      await page.keyboard.press('Control+n');
      await expect(page.getByRole('button', { name: 'Discard' })).toBeVisible();
      await expectAccessible();
    });
  });
}
