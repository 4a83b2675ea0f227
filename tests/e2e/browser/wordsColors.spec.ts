import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

test.describe('colors', () => {
  test('red is the lowest byte, alpha the highest', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x0403020100000000' });
    const color = tool.color(2);
    for (const [name, value] of [
      ['Red', '1'],
      ['Green', '2'],
      ['Blue', '3'],
      ['Alpha', '4'],
    ])
      await expect(color.getByRole('textbox', { name })).toHaveValue(value!);
    await expectAccessible();
  });

  test('a channel is set by its number from 0 to 255', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const color = tool.color(1);
    await enterText(color.getByRole('textbox', { name: 'Green' }), '18');
    await expect(tool.word(32, 1).base(16)).toHaveValue('1200');
    await enterText(color.getByRole('textbox', { name: 'Alpha' }), '256');
    await expect(tool.warning).toHaveText('Value 256 is out of range. Must be between 0 and 255');
    await expect(tool.word(32, 1).base(16)).toHaveValue('1200');
  });

  test('a text without alpha leaves the alpha byte, one with alpha sets it', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x80000000' });
    const text = tool.color(1).getByRole('textbox', { name: 'Color', exact: true });
    await enterText(text, '#F80');
    await expect(tool.word(32, 1).base(16)).toHaveValue('800088FF');
    await expect(text).toHaveValue('#ff8800');
    await enterText(text, 'rgb(1 2 3 / 100%)');
    await expect(tool.word(32, 1).base(16)).toHaveValue('FF030201');
  });

  test('every notation can be chosen and is understood again', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x80563412' });
    const color = tool.color(1);
    const notation = color.getByRole('button', { name: 'Color notation' });
    const text = color.getByRole('textbox', { name: 'Color', exact: true });
    await notation.click();
    const names = await page.getByRole('listbox', { name: 'Color notation' }).getByRole('option').allTextContents();
    await expectAccessible();
    await page.keyboard.press('Escape');
    expect(names).toEqual([
      'HEX',
      'HEXA',
      'RGB',
      'RGBA',
      'HSL',
      'HSLA',
      'LCH',
      'LCHA',
      'LAB',
      'LABA',
      'HWB',
      'HWBA',
      'OKLCH',
      'OKLCHA',
      'OKLAB',
      'OKLABA',
    ]);
    for (const name of names) {
      await tool.choose(notation, name);
      await expect(notation).toHaveText(new RegExp(`${name}$`));
      const written = await text.inputValue();
      await enterText(color.getByRole('textbox', { name: 'Red' }), '0');
      await enterText(text, written);
      await expect(tool.word(32, 1).base(16)).toHaveValue('80563412');
    }
  });

  test('a text that is no color is refused', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1 });
    const text = tool.color(1).getByRole('textbox', { name: 'Color', exact: true });
    await enterText(text, 'reddish');
    await expect(tool.warning).toHaveText('Unknown or invalid color format');
    await text.press('Escape');
    await expect(text).toHaveValue('#010000');
  });

  test('the swatch has the color', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0xff0000ff' });
    await expect(tool.color(1).locator('[style*="background-color"]')).toHaveCSS('background-color', 'rgb(255, 0, 0)');
  });
});
