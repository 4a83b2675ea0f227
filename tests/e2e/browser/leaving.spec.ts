import { expect, test } from '../support/browser/fixtures';
import { hostCalls, stubNativeHost } from '../support/browser/nativeHost';
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
      await expect(page.getByRole('toolbar')).not.toContainText('*');
    });
  }

  test('a saved document is simply read again by a reload key', async ({ page }) => {
    const loaded = page.waitForEvent('load');
    await page.keyboard.press('F5');
    await loaded;
    await expect(page.getByRole('tab')).toHaveText(['Mine']);
  });

  test('going back asks first; staying keeps the page where it is', async ({ page }) => {
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await page.evaluate(() => history.back());
    const dialog = page.getByRole('alertdialog', { name: 'Unsaved Changes' });
    await dialog.getByRole('button', { name: 'Cancel' }).click();
    await expect(page).toHaveURL(/\/tools\/words$/);
    await expect(page.getByRole('tab')).toHaveText(['Mine', 'Number A']);

    await page.evaluate(() => history.back());
    await dialog.getByRole('button', { name: 'Discard' }).click();
    await expect(page.getByRole('tab')).toHaveText(['Mine']);
    expect((await hostCalls(page)).filter(([name]) => name === 'readFile')).toHaveLength(2);
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
    await expect(page.getByRole('toolbar')).toContainText('Untitled.words.tessary*');
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
