import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 800, height: 600 } });

test.describe('screen readers', () => {
  test('find how many words a row out of view has, and get them when they go there', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 1024 });
    const far = tool.row('Int 8').getByRole('button', { name: 'Int 8: 128 words' });
    await expect(far).toHaveCount(1);
    await far.evaluate((element: HTMLElement) => element.focus());
    await expect(tool.word(8, 128).value).toBeFocused();
    await expect(tool.row('Int 8').getByRole('button', { name: 'Int 8: 128 words' })).toHaveCount(0);
  });

  test('read the bits of the field that they are in one by one', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5, intResolution: 32 });
    const { bits } = tool.word(32, 1);
    await bits.focus();
    const texts = tool.word(32, 1).group.getByRole('group', { name: 'Bits' }).getByRole('img');
    await expect(texts).toHaveCount(32);
    await expect(texts.nth(29)).toHaveAccessibleName('bit 2: 1');
    await page.keyboard.press('End');
    await page.keyboard.press('Space');
    await expect(texts.nth(31)).toHaveAccessibleName('bit 0: 0');
    await tool.word(32, 1).value.focus();
    await expect(texts).toHaveCount(0);
  });

  test('hear what an operation made of a word, once', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5, intResolution: 32 });
    await tool.word(32, 1).operate('shift-left');
    await expect(tool.status).toHaveText('Shift left: Int 32 word 1 is 10');
    await expect(page.getByRole('alert')).toHaveCount(0);
  });

  test('get no name twice', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await expect(tool.word(64, 1).value).toBeVisible();
    const twice = await page
      .locator('[title]')
      .evaluateAll(
        (elements) =>
          elements.filter((each) => [each.ariaLabel, each.textContent].includes(each.getAttribute('title'))).length,
      );
    expect(twice).toBe(0);
  });
});

test('a newcomer finds a sample, keys and the drop, on the start page and in the empty tool', async ({
  page,
  enter,
  expectAccessible,
}) => {
  await enter();
  await expect(page.getByText('Drop a document file')).toBeVisible();
  await expect(page.getByText('Ctrl+O')).toBeVisible();
  await expectAccessible();
  await page.getByRole('link', { name: 'Open Words Tool' }).click();
  await expect(page.getByText('Welcome to Words tool!')).toBeVisible();
  await expectAccessible();
  await page.getByRole('link', { name: 'Open a sample document' }).click();
  await expect(page.getByRole('tab', { name: 'SHA-256 initial hash' })).toBeVisible();
  await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
});
