import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

test.describe('undo and redo', () => {
  test('take a random word back and make it again, and say so once', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 77, intResolution: 1024 });
    const { value, operate } = { ...tool.word(1024, 1), operate: tool.word(1024, 1).operate.bind(tool.word(1024, 1)) };
    await operate('random');
    await expect(value).not.toHaveValue('77');
    const random = await value.inputValue();
    await page.keyboard.press('Control+z');
    await expect(value).toHaveValue('77');
    await expect(tool.status).toHaveText('Undid random, Int 1024 word 1');
    await expectAccessible();
    await page.keyboard.press('Control+z');
    await expect(tool.status).toHaveText('Nothing to undo');
    await page.keyboard.press('Control+Shift+z');
    await expect(value).toHaveValue(random);
    await page.keyboard.press('Control+z');
    await page.keyboard.press('Control+y');
    await expect(value).toHaveValue(random);
  });

  test('belong to the browser while a text is being typed, and to the document once it is entered', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 77 });
    const { value } = tool.word(64, 1);
    await enterText(value, '5');
    await value.press('End');
    await value.press('6');
    await value.press('Control+z');
    await expect(value).toHaveValue('5');
    await value.press('Control+z');
    await expect(value).toHaveValue('77');
    await expect(tool.word(8, 1).value).toHaveValue('77');
  });

  test('leave nothing of what was typed before Enter in the field', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 77 });
    const { value } = tool.word(64, 1);
    await value.focus();
    await page.keyboard.press('Control+a');
    await page.keyboard.type('123');
    await page.keyboard.press('Enter');
    await expect(tool.word(8, 1).value).toHaveValue('123');
    // The browser's own undo, as its menu offers it.
    // eslint-disable-next-line @typescript-eslint/no-deprecated -- nothing else runs it
    await page.evaluate(() => document.execCommand('undo'));
    await expect(value).toHaveValue('123');
  });

  test('take a drag over bits and a held key as one step each', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const { bits, value } = tool.word(8, 1);
    const box = (await bits.boundingBox())!;
    await page.mouse.move(box.x + box.width * 0.95, box.y + 10);
    await page.mouse.down();
    await page.mouse.move(box.x + box.width * 0.5, box.y + 10, { steps: 8 });
    await page.mouse.up();
    await expect(value).not.toHaveValue('0');
    const painted = await value.inputValue();
    await page.keyboard.press('Home');
    await page.keyboard.down('1');
    await page.keyboard.down('1');
    await page.keyboard.down('1');
    await page.keyboard.up('1');
    await expect(value).not.toHaveValue(painted);
    await page.keyboard.press('Control+z');
    await expect(value).toHaveValue(painted);
    await page.keyboard.press('Control+z');
    await expect(value).toHaveValue('0');
  });

  test('bring a closed sheet back to its place, and show it', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { displayName: 'First', int: 1 }, { displayName: 'Second', int: 2 });
    await page.getByRole('button', { name: 'Close First' }).click();
    await expect(page.getByRole('tab')).toHaveText(['Second']);
    await page.keyboard.press('Control+z');
    await expect(page.getByRole('tab')).toHaveText(['First', 'Second']);
    await expect(page.getByRole('tab', { name: 'First' })).toHaveAttribute('aria-selected', 'true');
    await expect(tool.status).toHaveText('Undid closed sheet, First');
  });

  test('bring back what was discarded for a new document', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { displayName: 'Kept', int: 1 });
    await enterText(tool.word(64, 1).value, '42');
    await page.keyboard.press('Control+n');
    await page.getByRole('button', { name: 'Discard' }).click();
    await expect(page.getByRole('tab')).toHaveText(['Number A']);
    await page.keyboard.press('Control+z');
    await expect(page.getByRole('tab')).toHaveText(['Kept']);
    await expect(tool.word(64, 1).value).toHaveValue('42');
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary*');
    await page.keyboard.press('Control+z');
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary');
    await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('numbers.words.tessary*');
  });

  test('scroll to the word that changed', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 1024 });
    await tool.setConverters();
    await page.getByRole('button', { name: /^I8, go to/ }).press('Enter');
    await tool.word(8, 2).value.press('Alt+ArrowRight');
    await expect(tool.word(8, 1).value).toBeFocused();
    await enterText(tool.word(8, 1).value, '9');
    await page.getByRole('button', { name: /^I1024, go to/ }).press('Enter');
    await page.keyboard.press('Control+z');
    const changed = tool.word(8, 1).value;
    await expect(changed).toHaveValue('0');
    await expect(changed).toBeInViewport();
  });
});
