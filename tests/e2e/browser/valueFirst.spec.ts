import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { stubNativeHost } from '../support/browser/nativeHost';
import { enterText, WordsTool } from '../support/browser/words';
import { documentText } from '../support/shared/documents';

// The size of the program's window.
test.use({ viewport: { width: 800, height: 600 } });

const PATH = '/home/me/numbers.words.tessary';

/** How far each row's words reach beyond the right edge of what is in view, in pixels. */
const beyondTheRight = (page: Page) =>
  page.locator('[data-scroller="row"]').evaluateAll((scrollers) =>
    scrollers.map((scroller) => {
      const [word] = scroller.querySelectorAll('[data-word="0"]');
      return word ? Math.round(word.getBoundingClientRect().right - scroller.getBoundingClientRect().right) : NaN;
    }),
  );

async function newDocument(page: Page, enter: () => Promise<void>) {
  await enter();
  await page.getByRole('link', { name: 'Open Words Tool' }).click();
  await page.getByRole('link', { name: 'Create Document' }).click();
  await page.getByRole('tabpanel').waitFor();
}

test.describe('the least significant end', () => {
  test('a number that was typed just now is in view in every row', async ({ page, enter }) => {
    await newDocument(page, enter);
    const tool = new WordsTool(page);
    await expect(tool.word(64, 1).value).toBeFocused();
    await page.keyboard.type('3221225620');
    await page.keyboard.press('Enter');
    await expect(tool.word(32, 1).base(16)).toHaveValue('C0000094');
    const scroller = page.locator('[data-scroller="sheet"]');
    for (const label of ['Int 64', 'Int 32', 'Int 16', 'Int 8', 'Color 32']) {
      await tool.row(label).scrollIntoViewIfNeeded();
      expect(new Set(await beyondTheRight(page)), label).toEqual(new Set([0]));
      const room = await tool.row(label).evaluate((row) => row.querySelector('[data-scroller]')!.clientWidth);
      expect(room, 'room for 32 bits').toBeGreaterThanOrEqual(560);
    }
    await scroller.evaluate((element) => (element.scrollTop = 0));
    await tool.word(64, 1).bits.hover({ position: { x: 1120 - 16, y: 10 } });
    await expect(tool.status).toContainText('bit 0 of word 1, 0');
  });

  test('a sheet of 1024 bits begins with its last lines in view', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 1024 });
    const { bits } = tool.word(1024, 1);
    const { bottom } = await bits.evaluate((canvas) => canvas.getBoundingClientRect().toJSON());
    const view = await page
      .locator('[data-scroller="sheet"]')
      .evaluate((each) => each.getBoundingClientRect().toJSON());
    expect(bottom).toBeLessThanOrEqual(view.bottom);
    expect(bottom).toBeGreaterThan(view.bottom - 60);
  });

  test('another resolution keeps the least significant word in view', async ({ page, enter }) => {
    await newDocument(page, enter);
    const tool = new WordsTool(page);
    for (const resolution of ['128', '1024', '64', '32']) {
      await tool.choose(tool.resolution, resolution);
      await page
        .getByRole('group', { name: 'Rows', exact: true })
        .getByRole('button', { name: /go to Int 16/ })
        .press('Enter');
      await expect(tool.word(16, 1).value).toBeInViewport({ ratio: 1 });
    }
  });

  test('a position that was stored wins, also at the most significant end', async ({ page, enter }) => {
    await newDocument(page, enter);
    const tool = new WordsTool(page);
    const row = tool.row('Int 32').locator('[data-scroller="row"]');
    await row.evaluate((element) => (element.scrollLeft = 0));
    const kept = () => page.evaluate(() => localStorage.getItem('bits-sheets-storage') ?? '');
    await expect.poll(kept).toContain('integer:32');
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect.poll(() => row.evaluate(({ scrollLeft }) => scrollLeft)).toBeGreaterThan(400);
    await page.getByRole('tab', { name: 'Number A' }).click();
    await expect.poll(() => row.evaluate(({ scrollLeft }) => scrollLeft)).toBe(0);
  });

  test('a narrower window keeps it in view; nothing is stored by that', async ({ page, enter }) => {
    await newDocument(page, enter);
    await page.setViewportSize({ width: 600, height: 600 });
    await expect.poll(async () => new Set(await beyondTheRight(page))).toEqual(new Set([0]));
    await page.setViewportSize({ width: 1000, height: 600 });
    await expect.poll(async () => new Set(await beyondTheRight(page))).toEqual(new Set([0]));
    await enterText(new WordsTool(page).word(64, 1).value, '7');
    // In the record each text lies within another one, so that quotes have backslashes before them.
    const record = () => page.evaluate(() => (localStorage.getItem('bits-sheets-storage') ?? '').replaceAll('\\', ''));
    await expect.poll(record).toContain('"int":"7"');
    expect(await record()).toContain('"rows":[]');
  });

  test('a row that was scrolled to stays in its place at each width, though those above it get higher', async ({
    page,
    enter,
  }) => {
    await newDocument(page, enter);
    const tool = new WordsTool(page);
    await tool.choose(tool.resolution, '1024');
    const map = page.getByRole('group', { name: 'Rows', exact: true });
    await map.getByRole('button', { name: /go to Int 32/ }).press('Enter');
    const sheet = page.locator('[data-scroller="sheet"]');
    const heightOfAll = () => sheet.evaluate(({ scrollHeight }) => scrollHeight);
    const top = async () => Math.round((await tool.row('Int 32').boundingBox())!.y);
    const before = await top();
    let height = await heightOfAll();
    for (const width of [1280, 500, 800]) {
      await page.setViewportSize({ width, height: 600 });
      await expect.poll(heightOfAll).not.toBe(height);
      height = await heightOfAll();
      expect(await top(), `${width} pixels`).toBe(before);
    }
    await page.setViewportSize({ width: 500, height: 600 });
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await page.getByRole('tab', { name: 'Number A' }).click();
    await expect.poll(top).toBe(before);
  });
});

test.describe('the keyboard at once', () => {
  test('New, "+" and a document from the command line have the first main field selected', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0x1234 });
    const { value } = tool.word(64, 1);
    await expect(value).toBeFocused();
    expect(await value.evaluate((field: HTMLInputElement) => [field.selectionStart, field.selectionEnd])).toEqual([
      0, 4,
    ]);
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect(value).toHaveValue('0');
    await expect(value).toBeFocused();
    await page.keyboard.type('5');
    await expect(value).toHaveValue('5');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Control+n');
    await page.getByRole('button', { name: 'Discard' }).click();
    await expect(value).toHaveValue('0');
    await expect(value).toBeFocused();
    await page.keyboard.type('77');
    await page.keyboard.press('Enter');
    await expect(tool.word(32, 1).value).toHaveValue('77');
  });

  test('so has a document that is opened', async ({ page, enter }) => {
    await stubNativeHost(page, { files: { [PATH]: documentText({ int: 9 }) }, choices: [PATH] });
    await enter();
    await page.keyboard.press('Control+o');
    const { value } = new WordsTool(page).word(64, 1);
    await expect(value).toBeFocused();
    await page.keyboard.type('10');
    await expect(value).toHaveValue('10');
  });

  test('a digit or letter on a word’s header replaces its value in the base typed last', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    await tool.word(8, 1).sign.focus();
    await page.keyboard.type('12');
    await expect(tool.word(8, 1).value).toHaveValue('12');
    await page.keyboard.press('Escape');
    await enterText(tool.word(16, 1).base(16), 'AB');
    await tool.word(8, 2).sign.focus();
    await page.keyboard.type('FE');
    await expect(tool.word(8, 2).base(16)).toBeFocused();
    await page.keyboard.press('Enter');
    await expect(tool.word(16, 1).base(16)).toHaveValue('FEAB');
  });
});

test.describe('a text that is entered', () => {
  test('a float stays a float when a bit is pressed next', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 32 });
    await tool.setConverters('A16', 'FLOAT');
    const word = tool.word(32, 1);
    await enterText(word.float, '-1234.5625');
    await expect(word.base(16)).toHaveValue('C49A5200');
    await expect(word.float).toBeFocused();
    const { width } = (await word.bits.boundingBox())!;
    const byte = width / 4;
    // Bit 23 is the first one of the second byte.
    await word.bits.click({ position: { x: byte + 12, y: 25 } });
    await expect(word.base(16)).toHaveValue('C41A5200');
    await expect(word.float).toHaveValue('-617.28125');
  });

  test('Enter on a text that nobody altered changes nothing', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x400921fb54442d18' });
    await tool.setConverters('A64', 'FLOAT');
    const word = tool.word(64, 1);
    await word.base(64).focus();
    await page.keyboard.press('Enter');
    await word.float.focus();
    await word.base(64).focus();
    await word.float.focus();
    await page.keyboard.press('Enter');
    await page.keyboard.press('Tab');
    await expect(word.value).toHaveValue(`4614256656552045848`);
    // The last change is still that of the converters.
    await page.keyboard.press('Control+z');
    await expect(tool.status).toContainText('Undid converters');
  });
});
