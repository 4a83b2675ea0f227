import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

test.describe('by keyboard alone', () => {
  test('Alt and arrows go from word to word, in the same kind of field', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0x12345678 });
    await tool.word(64, 1).base(16).focus();
    await page.keyboard.press('Alt+ArrowDown');
    await expect(tool.word(32, 1).base(16)).toBeFocused();
    await page.keyboard.press('Alt+ArrowDown');
    await expect(tool.word(16, 1).base(16)).toBeFocused();
    await page.keyboard.press('Alt+ArrowLeft');
    await expect(tool.word(16, 2).base(16)).toBeFocused();
    await expect(tool.word(16, 2).group).toHaveClass(/focused/);
    await page.keyboard.type('ab'); // in place of what was there
    await page.keyboard.press('Enter');
    await expect(tool.word(16, 2).base(16)).toHaveValue('AB');
    await page.keyboard.press('Alt+ArrowUp');
    await expect(tool.word(32, 1).base(16)).toBeFocused();
    await page.keyboard.press('Alt+ArrowRight');
    await expect(tool.word(32, 1).base(16)).toBeFocused();
    await expect(page).toHaveURL(/\/tools\/words$/);
  });

  test('Alt and arrows reach words that are far outside the view', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5, intResolution: 1024 });
    await tool.word(1024, 1).value.focus();
    for (let row = 0; row < 7; row++) await page.keyboard.press('Alt+ArrowDown');
    await expect(tool.word(8, 1).value).toBeFocused();
    await expect(tool.word(8, 1).value).toBeInViewport();
    for (let step = 0; step < 127; step++) await page.keyboard.press('Alt+ArrowLeft');
    await expect(tool.word(8, 128).value).toBeFocused();
    await expect(tool.word(8, 128).value).toBeInViewport();
    await page.keyboard.press('Alt+ArrowDown');
    await expect(tool.color(32).getByRole('textbox', { name: 'Color', exact: true })).toBeFocused();
  });

  test('Tab stops at the header, the fields and the bits of a word; arrow keys reach the rest', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const { sign, group } = tool.word(8, 8);
    const pressed = async (key: string, times: number) => {
      const names: string[] = [];
      for (let stop = 0; stop < times; stop++) {
        names.push(await page.evaluate(() => document.activeElement!.getAttribute('aria-label')!));
        await page.keyboard.press(key);
      }
      return names;
    };
    await sign.focus();
    expect(await pressed('ArrowRight', 7)).toEqual([
      '8U unsigned',
      'All bits to 0',
      'All bits to 1',
      'Random bits',
      'Invert bits',
      'Shift left',
      'More operations',
    ]);
    await page.keyboard.press('Home');
    expect(await pressed('Tab', 3)).toEqual(['8U unsigned', 'Value', 'Bit field (8 bits)']);
    await expect(group).not.toHaveClass(/focused/);
    await expect(tool.word(8, 7).sign).toBeFocused();
    await tool.word(8, 8).value.focus();
    expect(await pressed('ArrowDown', 4)).toEqual(['Value', 'Base 2', 'Base 8', 'Base 16']);
    await page.keyboard.press('Tab');
    await page.keyboard.press('Shift+Tab');
    await expect(tool.word(8, 8).base(16)).toBeFocused();
    await page.keyboard.press('ArrowUp');
    await expect(tool.word(8, 8).base(8)).toBeFocused();
  });

  test('signs, operations and menus', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0x80 });
    const byte = tool.word(8, 1);
    await byte.sign.focus();
    await page.keyboard.press('Space');
    await expect(byte.sign).toHaveText('8S');
    await byte.group.getByRole('button', { name: 'More operations' }).focus();
    await page.keyboard.press('Enter');
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('Enter');
    await expect(byte.base(16)).toHaveValue('40');
    await expect(byte.group.getByRole('button', { name: 'More operations' })).toBeFocused();
  });

  test('the focus can be seen on every control', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.resolution.focus();
    for (let stop = 0; stop < 40; stop++) {
      await page.keyboard.press('Tab');
      const outline = await page.evaluate(() => {
        const { outlineStyle, outlineWidth } = getComputedStyle(document.activeElement!);
        return `${outlineStyle} ${outlineWidth}`;
      });
      expect(outline).toBe('solid 2px');
    }
  });

  test('the list of keys', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const keys = page.getByRole('button', { name: 'Keys' });
    await keys.focus();
    await page.keyboard.press('Enter');
    const list = page.getByRole('dialog', { name: 'Keys' });
    for (const shown of ['Alt+Arrow keys', 'Ctrl+S', 'F2', 'Delete', 'Ctrl+Arrow keys']) {
      await expect(list).toContainText(shown);
    }
    await expectAccessible();
    await expect(list.getByRole('searchbox')).toBeFocused();
    await page.keyboard.type('save as');
    await expect(list.getByRole('definition')).toHaveText(['Save As']);
    await page.keyboard.press('Escape');
    await expect(keys).toBeFocused();
  });

  test('F1 opens the list of keys from everywhere, without a document, too', async ({ page, enter }) => {
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).waitFor();
    await page.keyboard.press('F1');
    await expect(page.getByRole('dialog', { name: 'Keys' })).toContainText('Ctrl+O');
    await page.keyboard.press('F1');
    await expect(page.getByRole('dialog')).toHaveCount(0);
  });
});

test.describe('far and near', () => {
  test('only words in or near the view are on the page', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 1024 });
    const words = page.getByRole('group', { name: /word \d+$/ });
    expect(await words.count()).toBeLessThan(20);
    await expectAccessible();
    await page.getByRole('button', { name: 'I8, go to Int 8' }).press('Enter');
    await expect(tool.word(8, 1).value).toBeInViewport();
    await expect(tool.word(8, 1).value).toHaveValue('1');
    await expect(tool.word(8, 128).group).toHaveCount(0);
    expect(await words.count()).toBeLessThan(80);
    await tool
      .row('Int 8')
      .locator('[data-scroller="row"]')
      .evaluate((element) => (element.scrollLeft = 0));
    await expect(tool.word(8, 128).value).toHaveValue('0');
    await expect(tool.word(8, 1).group).toHaveCount(0);
    await expectAccessible();
  });

  test('a press into the minimap scrolls there', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { intResolution: 1024 });
    const map = page.getByRole('group', { name: 'Rows', exact: true });
    const { width, height } = (await map.boundingBox())!;
    await map.click({ position: { x: width / 2, y: height - 2 } });
    await expect(tool.color(1)).toBeInViewport();
  });

  test('the minimap is not there when everything is in view', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { intResolution: 32 });
    await expect(tool.word(8, 1).value).toBeVisible();
    await expect(page.getByRole('group', { name: 'Rows', exact: true })).toHaveCount(0);
  });
});

test.describe('looks that the system asks for', () => {
  test('forced colors keep ones and zeros apart', async ({ page, enter }) => {
    await page.emulateMedia({ forcedColors: 'active' });
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0x80 });
    const { bits } = tool.word(8, 1);
    const [one, zero] = await bits.evaluate((canvas: HTMLCanvasElement) => {
      const context = canvas.getContext('2d')!;
      const at = (share: number) => [...context.getImageData(canvas.width * share, 18, 1, 1).data].join();
      return [at(1 / 16), at(15 / 16)];
    });
    expect(one).not.toBe(zero);
  });
});

test('Tab and Shift+Tab reach every word, also those out of view', async ({ page, enter }) => {
  await page.setViewportSize({ width: 900, height: 600 });
  const tool = new WordsTool(page);
  await tool.open(enter, { int: 0, intResolution: 128 });
  await tool.setConverters();
  const every = [128, 64, 32, 16, 8]
    .flatMap((bits) => Array.from({ length: 128 / bits }, (_, index) => `Int ${bits} word ${128 / bits - index}`))
    .concat(Array.from({ length: 4 }, (_, index) => `Color 32 word ${4 - index}`));
  const focusedWord = () =>
    page.evaluate(() => document.activeElement?.closest('[data-word]')?.getAttribute('aria-label') ?? '');
  for (const [key, words] of [
    ['Tab', every],
    ['Shift+Tab', [...every].reverse()],
  ] as const) {
    const reached = new Set<string>();
    if (key === 'Tab') await tool.word(128, 1).sign.focus();
    else await page.keyboard.press(key);
    for (let word = await focusedWord(); word !== ''; word = await focusedWord()) {
      reached.add(word);
      await page.keyboard.press(key);
    }
    expect([...reached]).toEqual(words);
  }
});
