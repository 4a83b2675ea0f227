import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { hostCalls, stubNativeHost } from '../support/browser/nativeHost';
import { enterText, WordsTool } from '../support/browser/words';
import { documentText } from '../support/shared/documents';

const PATH = '/home/me/numbers.words.tessary';
const KEY = 'bits-sheets-storage';

test.describe('leaving unsaved work in the native host', () => {
  test.beforeEach(async ({ page, enter }) => {
    await stubNativeHost(page, {
      args: { filePath: PATH },
      files: { [PATH]: documentText({ displayName: 'Mine' }) },
    });
    await enter();
    await expect(page.getByRole('tab', { name: 'Mine' })).toBeVisible();
  });

  for (const keys of ['F5', 'Control+r', 'Control+Shift+r']) {
    test(`${keys} asks first and then starts at the start page again`, async ({ page }) => {
      await page.getByRole('button', { name: 'Add sheet' }).click();
      await page.keyboard.press(keys);
      const dialog = page.getByRole('alertdialog', { name: 'Unsaved Changes' });
      await dialog.getByRole('button', { name: 'Cancel' }).click();
      await expect(page.getByRole('tab')).toHaveText(['Mine', 'Number A']);
      await page.keyboard.press(keys);
      await dialog.getByRole('button', { name: 'Discard' }).click();
      await expect(page.getByRole('tab')).toHaveText(['Mine']);
      await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
    });
  }

  test('a saved document is simply read again by a reload key', async ({ page }) => {
    const loaded = page.waitForEvent('load');
    await page.keyboard.press('F5');
    await loaded;
    await expect(page.getByRole('tab')).toHaveText(['Mine']);
  });

  for (const [how, leave] of [
    ['the application icon', (page: Page) => page.getByRole('link', { name: 'About the app' }).click()],
    ['going back', (page: Page) => page.evaluate(() => history.back())],
  ] as const) {
    test(`${how} asks nothing; what the start page replaces comes back with undo`, async ({ page }) => {
      const tool = new WordsTool(page);
      await enterText(tool.word(64, 1).value, '42');
      await page.getByRole('button', { name: 'Add sheet' }).click();
      await leave(page);
      await expect.poll(async () => (await hostCalls(page)).filter(([name]) => name === 'readFile').length).toBe(2);
      await expect(page.getByRole('tab')).toHaveText(['Mine']);
      await expect(tool.word(64, 1).value).toHaveValue('255');
      await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
      await expect(page.getByRole('alertdialog')).toHaveCount(0);

      await page.keyboard.press('Control+z');
      await expect(page.getByRole('tab')).toHaveText(['Mine', 'Number A']);
      await page.getByRole('tab', { name: 'Mine' }).click();
      await expect(tool.word(64, 1).value).toHaveValue('42');
      await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary*');
    });
  }

  test('a document whose save dialog was cancelled comes back, too, though it does not count as unsaved', async ({
    page,
  }) => {
    await page.keyboard.press('Control+n');
    await enterText(new WordsTool(page).word(64, 1).value, '42');
    await page.keyboard.press('Control+s');
    await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
    await page.getByRole('link', { name: 'About the app' }).click();
    await expect(page.getByRole('tab')).toHaveText(['Mine']);
    await page.keyboard.press('Control+z');
    await expect(page.getByRole('tab')).toHaveText(['Number A']);
    await expect(new WordsTool(page).word(64, 1).value).toHaveValue('42');
  });

  test('going back from a saved document opens the file of the command line again', async ({ page }) => {
    await page.evaluate(() => history.back());
    await expect.poll(async () => (await hostCalls(page)).length).toBe(2);
    await expect(page.getByRole('tab')).toHaveText(['Mine']);
  });
});

test.describe('leaving a browser tab', () => {
  test('with unsaved work asks first, without it does not', async ({ page, enter }) => {
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByRole('link', { name: 'Create Document' }).click();
    const asking = page.waitForEvent('dialog');
    await page.close({ runBeforeUnload: true });
    const dialog = await asking;
    expect(dialog.type()).toBe('beforeunload');
    await dialog.dismiss();
    await page.getByRole('button', { name: 'Close', exact: true }).click();
    await page.getByRole('button', { name: 'Discard' }).click();
    const closed = page.waitForEvent('close');
    await page.close({ runBeforeUnload: true });
    await closed;
  });

  test('never asks between the start page and the tool: the document is there all the time', async ({
    page,
    enter,
  }) => {
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByRole('link', { name: 'Create Document' }).click();
    await page.getByRole('link', { name: 'About the app' }).click();
    await expect(page.getByRole('heading', { name: 'Tessary' })).toBeVisible();
    await page.goBack();
    await expect(page.getByRole('tab')).toHaveText(['Number A']);
    await page.goBack();
    await expect(page.getByRole('heading', { name: 'Tessary' })).toBeVisible();
    await page.goForward();
    await expect(page.getByRole('tab')).toHaveText(['Number A']);
    await expect(page.getByRole('alertdialog')).toHaveCount(0);
  });

  for (const keys of ['F5', 'Control+r']) {
    test(`${keys} asks nothing and loses nothing`, async ({ page, enter }) => {
      const questions: string[] = [];
      page.on('dialog', (dialog) => {
        questions.push(dialog.type());
        void dialog.accept();
      });
      await enter();
      await page.getByRole('link', { name: 'Open Words Tool' }).click();
      await page.getByRole('link', { name: 'Create Document' }).click();
      await enterText(new WordsTool(page).word(64, 1).value, '42');
      const loaded = page.waitForEvent('load');
      await page.keyboard.press(keys);
      await loaded;
      await expect(page).toHaveURL(/\d\/$/);
      await page.getByRole('link', { name: 'Open Words Tool' }).click();
      await expect(new WordsTool(page).word(64, 1).value).toHaveValue('42');
      await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('Untitled.words.tessary*');
      expect(questions).toEqual([]);
    });
  }

  test('is told once when the storage is full or forbidden; a reload key asks then', async ({ page, enter }) => {
    await page.addInitScript(() => {
      Storage.prototype.setItem = () => {
        throw new DOMException('full', 'QuotaExceededError');
      };
    });
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByRole('link', { name: 'Create Document' }).click();
    const told = page.getByText('This browser cannot keep the sheets for the next visit');
    await expect(told).toHaveCount(1);
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect(told).toHaveCount(1);
    await expect(told).toHaveCount(0);
    await enterText(new WordsTool(page).word(64, 1).value, '42');
    await page.keyboard.press('F5');
    const dialog = page.getByRole('alertdialog', { name: 'Unsaved Changes' });
    await dialog.getByRole('button', { name: 'Cancel' }).click();
    await expect(new WordsTool(page).word(64, 1).value).toHaveValue('42');
    await expect(told).toHaveCount(0);
  });

  test('loses nothing: the next visit has the sheets again', async ({ page, enter }) => {
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByRole('link', { name: 'Create Document' }).click();
    await page.getByRole('button', { name: 'Add sheet' }).click();
    page.on('dialog', (dialog) => void dialog.accept());
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await expect(page.getByRole('tab')).toHaveText(['Number A', 'Number B']);
    await expect(page.getByRole('tab', { selected: true })).toHaveText('Number B');
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('Untitled.words.tessary*');
  });

  test('a broken record is set aside and the page starts afresh', async ({ page, enter }) => {
    await page.addInitScript((key) => localStorage.setItem(key, '{"foreign":true}'), KEY);
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await expect(page.getByRole('heading', { name: 'Welcome to Words tool!' })).toBeVisible();
    const kept = await page.evaluate((key) => localStorage.getItem(`${key}-set-aside`), KEY);
    expect(kept).toBe('{"foreign":true}');
  });
});

test("a web server may show the page under its file's name", async ({ page, enter, server }) => {
  await enter();
  await page.goto(`${server.url}/index.html`);
  await expect(page.getByRole('heading', { name: 'Tessary' })).toBeVisible();
  await expect(page).toHaveURL(`${server.url}/`);
});

test("opening a document adds nothing to the browser's history while the tool is shown", async ({ page, enter }) => {
  await stubNativeHost(page, { choices: [PATH], files: { [PATH]: documentText({ displayName: 'Mine' }) } });
  await enter();
  await page.getByRole('link', { name: 'Open Words Tool' }).click();
  const before = await page.evaluate(() => history.length);
  await page.keyboard.press('Control+o');
  await expect(page.getByRole('tab')).toHaveText(['Mine']);
  await page.keyboard.press('Control+n');
  await expect(page.getByRole('tab')).toHaveText(['Number A']);
  expect(await page.evaluate(() => history.length)).toBe(before);
});
