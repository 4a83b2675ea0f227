import { expect, test } from '../support/browser/fixtures';

test.describe('without a network', () => {
  test.beforeEach(async ({ page, enter }) => {
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByRole('link', { name: 'Create Document' }).click();
  });

  test('an open page goes on working, saving included', async ({ page, context }) => {
    await context.setOffline(true);
    const value = page.getByRole('group', { name: 'Int 64 word 1' }).getByRole('textbox', { name: 'Value' });
    await value.fill('77');
    await value.press('Enter');
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect(page.getByRole('tab')).toHaveCount(2);
    await page.evaluate(() => {
      const written: string[] = [];
      const handle = {
        name: 'mine.words.tessary',
        createWritable: async () => ({ write: async (text: string) => written.push(text), close: async () => {} }),
      };
      Object.assign(window, { showSaveFilePicker: async () => handle, written });
    });
    await page.getByRole('button', { name: 'Save', exact: true }).click();
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('mine.words.tessary');
    const text = await page.evaluate(() => (window as unknown as { written: string[] }).written.join(''));
    expect(JSON.parse(text).sheets[0].int).toBe('0x4d');
  });

  test('a reload away from the start page finds nothing, and the sheets are there again at the start page', async ({
    page,
    enter,
    problems,
  }) => {
    const value = page.getByRole('group', { name: 'Int 64 word 1' }).getByRole('textbox', { name: 'Value' });
    await value.fill('77');
    await value.press('Enter');
    await expect(
      page.getByRole('group', { name: 'Int 32 word 1' }).getByRole('textbox', { name: 'Value' }),
    ).toHaveValue('77');
    page.on('dialog', (dialog) => dialog.accept());
    const answer = await page.reload();
    expect(answer?.status()).toBe(404);
    problems.length = 0; // the browser's console reports the 404
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await expect(value).toHaveValue('77');
  });
});
