import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.describe('a held Enter', () => {
  for (const { name, key } of [
    { name: 'sign', key: '[data-focus-key="sign"]' },
    { name: 'operation', key: '[data-operation="shift-left"]' },
  ]) {
    test(`applies an operation once, and does not press the ${name} that its form was opened from`, async ({
      page,
      enter,
    }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 1, intResolution: 32 });
      const word = tool.word(32, 1);
      await word.group.locator(key).focus();
      await page.keyboard.press('Control+k');
      await page.keyboard.type('not');
      for (let i = 0; i < 4; i++) await page.keyboard.down('Enter');
      await page.keyboard.up('Enter');
      await expect(word.group.locator(key)).toBeFocused();
      await expect(word.base(16)).toHaveValue('FFFFFFFE');
      await expect(word.sign).toHaveText('32U');
    });
  }

  test('on a button does again what the button does', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 32 });
    const word = tool.word(32, 1);
    await word.group.locator('[data-operation="shift-left"]').focus();
    for (let i = 0; i < 4; i++) await page.keyboard.down('Enter');
    await page.keyboard.up('Enter');
    await expect(word.base(16)).toHaveValue('10');
  });
});
