import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

test('lists and menus open below what they belong to, in a narrow window, too', async ({ page, enter }) => {
  const tool = new WordsTool(page);
  await tool.open(enter, {});
  for (const width of [1280, 400]) {
    await page.setViewportSize({ width, height: 800 });
    for (const button of [tool.resolution, tool.formats, tool.converters]) {
      await button.click();
      const opener = (await button.boundingBox())!;
      const list = (await page.getByRole('listbox').boundingBox())!;
      expect(list.y).toBeGreaterThanOrEqual(opener.y + opener.height);
      expect(list.y).toBeLessThan(opener.y + opener.height + 40);
      await page.keyboard.press('Escape');
    }
  }
  const more = tool.word(8, 1).group.getByRole('button', { name: 'More operations' });
  await more.click();
  const [opener, menu] = [(await more.boundingBox())!, (await page.getByRole('menu').boundingBox())!];
  expect(Math.min(Math.abs(menu.y - opener.y - opener.height), Math.abs(opener.y - menu.y - menu.height))).toBeLessThan(
    20,
  );
});

/** Nobody scrolls and sizes a window within one frame, or sizes it twice, where the page cannot tell one from the other. */
const framesShown = (page: Page) =>
  page.evaluate(() => new Promise((shown) => requestAnimationFrame(() => requestAnimationFrame(shown))));

test.describe('the resolution', () => {
  test('offers six widths; a smaller one drops the high bits for good', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: `0x${'f'.repeat(32)}`, intResolution: 128 });
    await tool.resolution.click();
    await expect(page.getByRole('listbox', { name: 'Resolution' }).getByRole('option')).toHaveText([
      '32',
      '64',
      '128',
      '256',
      '512',
      '1024',
    ]);
    await expect(page.getByRole('option', { selected: true })).toHaveText('128');
    await expect(page.getByRole('option', { selected: true })).toBeFocused();
    await expectAccessible();
    await page.getByRole('option', { name: '32', exact: true }).click();
    await expect(page.getByRole('listbox')).toHaveCount(0);
    await expect(tool.word(32, 1).base(16)).toHaveValue('FFFFFFFF');
    await tool.choose(tool.resolution, '128');
    await expect(tool.word(128, 1).base(16)).toHaveValue('FFFFFFFF');
  });

  test('is chosen by keyboard', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.resolution.focus();
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('Enter');
    await expect(tool.resolution).toContainText('128');
    await expect(tool.resolution).toBeFocused();
    await page.keyboard.press('Enter');
    await page.keyboard.type('5');
    await page.keyboard.press('Space');
    await expect(tool.resolution).toContainText('512');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Escape');
    await expect(page.getByRole('listbox')).toHaveCount(0);
    await expect(tool.resolution).toBeFocused();
  });
});

test.describe('converters', () => {
  test('63 bases in six columns and the float; chosen ones are sorted', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await expect(tool.converters).toContainText('A2, A8, A16');
    await tool.converters.click();
    const bases = page.getByRole('group', { name: 'ASCII Alphabet' }).getByRole('option');
    await expect(bases).toHaveCount(63);
    await expect(page.getByRole('group', { name: 'Arithmetic' }).getByRole('option')).toHaveText(['FLOAT']);
    const tops = await bases.evaluateAll((options) => options.map((option) => option.getBoundingClientRect().top));
    expect(tops.filter((top) => top === tops[0])).toHaveLength(6);
    await expectAccessible();
    await page.getByRole('option', { name: 'FLOAT' }).click();
    await page.getByRole('option', { name: 'A4', exact: true }).click();
    await page.getByRole('option', { name: 'A8', exact: true }).click();
    await page.keyboard.press('Escape');
    await expect(tool.converters).toContainText('A2, A4, A16, FLOAT');
    await expect(tool.word(8, 1).group.getByRole('textbox')).toHaveCount(5);
    await expect(tool.word(8, 1).base(4)).toHaveValue('3333');
    await expect(tool.word(8, 1).group.getByText('4:', { exact: true })).toBeVisible();
    await expect(tool.word(8, 1).group.getByText('F:', { exact: true })).toBeVisible();
    await expectAccessible();
  });

  test('Clear leaves none, Reset brings the usual ones back', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.setConverters();
    await expect(tool.converters).toContainText('None');
    await expect(tool.word(8, 1).group.getByRole('textbox')).toHaveCount(1);
    await expectAccessible();
    await tool.converters.click();
    await page.getByRole('button', { name: 'Reset', exact: true }).click();
    await expect(tool.converters).toContainText('A2, A8, A16');
  });

  test('are reset and cleared by keyboard; Tab goes through the list and on', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.converters.focus();
    await page.keyboard.press('Enter');
    await page.keyboard.press('ArrowRight');
    await expect(page.getByRole('option', { name: 'A3', exact: true })).toBeFocused();
    await page.keyboard.press('Tab');
    await expect(page.getByRole('button', { name: 'Reset', exact: true })).toBeFocused();
    await page.keyboard.press('Tab');
    await page.keyboard.press('Enter');
    await expect(tool.converters).toContainText('None');
    await page.keyboard.press('Shift+Tab');
    await page.keyboard.press('Space');
    await expect(tool.converters).toContainText('A2, A8, A16');
    await page.keyboard.press('Shift+Tab');
    await expect(page.getByRole('option', { name: 'A3', exact: true })).toBeFocused();
    await page.keyboard.press('Tab');
    await page.keyboard.press('Tab');
    await page.keyboard.press('Tab');
    await expect(page.getByRole('listbox')).toHaveCount(0);
    await expect(tool.word(64, 1).sign).toBeFocused(); // the toolbar is one stop
  });

  test('are chosen by keyboard across the grid', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.converters.focus();
    await page.keyboard.press('Enter');
    await expect(page.getByRole('option', { name: 'A2', exact: true })).toBeFocused();
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('ArrowRight');
    await expect(page.getByRole('option', { name: 'A15', exact: true })).toBeFocused();
    await page.keyboard.press('Space');
    await page.keyboard.press('Escape');
    await expect(tool.converters).toContainText('A2, A8, A15, A16');
  });
});

test.describe('formats', () => {
  test('every row but the first can be hidden and shown', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.formats.click();
    await expect(page.getByRole('option')).toHaveText(['Int 32', 'Int 16', 'Int 8', 'Color 32']);
    await page.getByRole('option', { name: 'Int 16' }).click();
    await page.getByRole('option', { name: 'Color 32' }).click();
    await expect(page.getByRole('option', { selected: true })).toHaveText(['Int 32', 'Int 8']);
    await page.keyboard.press('Escape');
    await expect(tool.row('Int 16')).toHaveCount(0);
    await expect(tool.row('Color 32')).toHaveCount(0);
    await expect(tool.formats).toContainText('I32, I8');
    await expectAccessible();
    await tool.choose(tool.formats, 'Int 16');
    await expect(tool.row('Int 16')).toBeVisible();
  });

  test('a hidden row stays hidden at another resolution', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.choose(tool.formats, 'Int 16');
    await tool.choose(tool.resolution, '32');
    await expect(tool.row('Int 8')).toBeVisible();
    await expect(tool.row('Int 16')).toHaveCount(0);
  });
});

test.describe('the scroll lock', () => {
  const scrollRow = (tool: WordsTool, label: string, to: number) =>
    tool
      .row(label)
      .locator('[data-scroller="row"]')
      .evaluate((element, left) => (element.scrollLeft = left), to);
  const position = (tool: WordsTool, label: string) =>
    tool
      .row(label)
      .locator('[data-scroller="row"]')
      .evaluate((element) => element.scrollLeft);

  test('is offered only where rows are wider than the view', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await expect(tool.resolution).toBeVisible();
    await expect(tool.scrollLock).toHaveCount(0);
    await tool.choose(tool.resolution, '128');
    await expect(tool.scrollLock).toBeVisible();
    await page.setViewportSize({ width: 2560, height: 800 });
    await expect(tool.scrollLock).toHaveCount(0);
  });

  test('scrolls all rows together, otherwise each for itself', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { intResolution: 256 });
    await tool.choose(tool.formats, 'Int 64');
    await scrollRow(tool, 'Int 256', 300);
    await expect.poll(() => position(tool, 'Int 256')).toBe(300);
    expect(await position(tool, 'Int 128')).toBeGreaterThan(3000); // at its least significant end, as it began
    await tool.scrollLock.click();
    await expect(tool.scrollLock).toHaveAttribute('aria-pressed', 'true');
    await scrollRow(tool, 'Int 128', 200);
    await expect.poll(() => position(tool, 'Int 256')).toBe(200);
    await expectAccessible();
  });

  test('takes rows along that are out of view, also of another sheet', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    const wide = { int: 0, intResolution: 256 };
    await tool.open(enter, { id: 'a', displayName: 'First', ...wide }, { id: 'b', displayName: 'Second', ...wide });
    const labels = ['Int 256', 'Int 128', 'Int 64', 'Int 32', 'Int 16', 'Int 8', 'Color 32'];
    const expectAllAt = async (expected: number) => {
      for (const label of labels) {
        await tool.row(label).scrollIntoViewIfNeeded();
        await expect.poll(() => position(tool, label)).toBe(expected);
      }
      await tool.row('Int 256').scrollIntoViewIfNeeded();
    };
    await tool.scrollLock.click();
    await scrollRow(tool, 'Int 128', 300);
    await expectAllAt(300);
    await page.getByRole('tab', { name: 'Second' }).click();
    await tool.scrollLock.click();
    await scrollRow(tool, 'Int 256', 500);
    await expectAllAt(500);
    await page.getByRole('tab', { name: 'First' }).click();
    await expectAllAt(300);
    await scrollRow(tool, 'Int 256', 400);
    await expectAllAt(400);
    await page.getByRole('tab', { name: 'Second' }).click();
    await expectAllAt(500);
  });

  test('positions outlast a window that is wide enough for the whole rows', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { intResolution: 128 });
    await scrollRow(tool, 'Int 64', 700);
    await framesShown(page);
    const end = await position(tool, 'Int 128');
    for (const width of [1800, 2560]) {
      await page.setViewportSize({ width, height: 800 });
      await expect.poll(() => position(tool, 'Int 64')).toBeLessThan(700);
      await framesShown(page);
      await page.setViewportSize({ width: 1280, height: 800 });
      await expect.poll(() => position(tool, 'Int 64')).toBe(700);
      expect(await position(tool, 'Int 128')).toBe(end);
      await framesShown(page);
    }
  });

  test('positions come back with their sheet, and after a reload', async ({ page, enter }) => {
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByRole('link', { name: 'Create Document' }).click();
    const tool = new WordsTool(page);
    await tool.choose(tool.resolution, '1024');
    await scrollRow(tool, 'Int 1024', 700);
    const kept = () => page.evaluate(() => localStorage.getItem('bits-sheets-storage') ?? '');
    await expect.poll(kept).toContain('700');
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await tool.choose(tool.resolution, '1024');
    expect(await position(tool, 'Int 1024')).toBeGreaterThan(16_000);
    await page.getByRole('tab', { name: 'Number A' }).click();
    await expect.poll(() => position(tool, 'Int 1024')).toBe(700);

    page.on('dialog', (dialog) => void dialog.accept());
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await expect.poll(() => position(tool, 'Int 1024')).toBe(700);
  });
});

test('a reload keeps value, signs, rows, converters and the focused word', async ({ page, enter }) => {
  await enter();
  await page.getByRole('link', { name: 'Open Words Tool' }).click();
  await page.getByRole('link', { name: 'Create Document' }).click();
  const tool = new WordsTool(page);
  await expect(tool.word(64, 1).group).toHaveClass(/focused/);
  await enterText(tool.word(16, 2).base(16), 'FFFE');
  await tool.word(16, 2).sign.click();
  await tool.setConverters('A16', 'FLOAT');
  await tool.choose(tool.formats, 'Int 8');
  page.on('dialog', (dialog) => void dialog.accept());
  await enter();
  await page.getByRole('link', { name: 'Open Words Tool' }).click();
  await expect(tool.word(16, 2).value).toHaveValue('-2');
  await expect(tool.word(16, 2).sign).toHaveText('16S');
  await expect(tool.word(16, 2).group).toHaveClass(/focused/);
  await expect(tool.converters).toContainText('A16, FLOAT');
  await expect(tool.row('Int 8')).toHaveCount(0);
});
