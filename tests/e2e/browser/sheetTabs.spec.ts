import { expect, test } from '../support/browser/fixtures';
import { stubNativeHost } from '../support/browser/nativeHost';
import { documentText } from '../support/shared/documents';

const PATH = '/home/me/numbers.words.tessary';
const three = documentText(
  { id: 'a', displayName: 'First' },
  { id: 'b', displayName: 'Second' },
  { id: 'c', displayName: 'Third' },
);

test.describe('sheet tabs', () => {
  test.beforeEach(async ({ page, enter }) => {
    await stubNativeHost(page, {
      args: { filePath: PATH },
      files: { [PATH]: three },
    });
    await enter();
  });

  test('show one sheet at a time', async ({ page, expectAccessible }) => {
    await expect(page.getByRole('tablist', { name: 'Sheets' })).toHaveCount(1);
    await expect(page.getByRole('tab')).toHaveText(['First', 'Second', 'Third']);
    await expect(page.getByRole('tab', { selected: true })).toHaveText('First');
    await page.getByRole('tab', { name: 'Second' }).click();
    await expect(page.getByRole('tab', { selected: true })).toHaveText('Second');
    await expect(page.getByRole('tabpanel', { name: 'Second' })).toBeVisible();
    await expectAccessible();
  });

  test('a new sheet comes last and is shown', async ({ page }) => {
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect(page.getByRole('tab')).toHaveText(['First', 'Second', 'Third', 'Number A']);
    await expect(page.getByRole('tab', { selected: true })).toHaveText('Number A');
  });

  test('after closing a sheet the last one is shown; the last of all can be closed too', async ({ page }) => {
    await page.getByRole('button', { name: 'Close First' }).click();
    await expect(page.getByRole('tab', { selected: true })).toHaveText('Third');
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary*');
    await page.getByRole('button', { name: 'Close Third' }).click();
    await page.getByRole('button', { name: 'Close Second' }).click();
    await expect(page.getByRole('heading', { name: 'Welcome to Words tool!' })).toBeVisible();
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary*');
  });

  test('a double click on a close button closes one sheet', async ({ page }) => {
    await page.getByRole('button', { name: 'Close First' }).dblclick();
    await expect(page.getByRole('tab')).toHaveText(['Second', 'Third']);
  });

  test('are renamed in place', async ({ page, expectAccessible }) => {
    const name = page.getByRole('textbox', { name: 'Sheet name' });
    await page.getByRole('tab', { name: 'Second' }).dblclick();
    await expect(name).toHaveValue('Second');
    await expect(name).toBeFocused();
    await expectAccessible();
    await name.fill('  Mine \t');
    await name.press('Enter');
    await expect(page.getByRole('tab')).toHaveText(['First', 'Mine', 'Third']);
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary*');

    await page.keyboard.press('F2');
    await name.fill('Never');
    await name.press('Escape');
    await expect(name).toHaveCount(0);
    await expect(page.getByRole('tab')).toHaveText(['First', 'Mine', 'Third']);
  });

  test('leave Enter to an input method while it composes a name', async ({ page }) => {
    const name = page.getByRole('textbox', { name: 'Sheet name' });
    await page.getByRole('tab', { name: 'First' }).dblclick();
    await name.fill('漢字');
    await name.dispatchEvent('keydown', { key: 'Enter', isComposing: true });
    await expect(name).toHaveValue('漢字');
    await name.dispatchEvent('keydown', { key: 'Enter' });
    await expect(page.getByRole('tab')).toHaveText(['漢字', 'Second', 'Third']);
  });

  test('an empty name is refused', async ({ page }) => {
    await page.getByRole('tab', { name: 'First' }).dblclick();
    const name = page.getByRole('textbox', { name: 'Sheet name' });
    await name.fill('   ');
    await name.press('Enter');
    await expect(page.getByRole('alert')).toHaveText('Sheet name cannot be empty.');
    await expect(name).toBeVisible();
    await page.getByRole('tab', { name: 'Third' }).click();
    await expect(page.getByRole('tab')).toHaveText(['First', 'Second', 'Third']);
    await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
  });

  test('the one that is shown can be made out where the system rules the colours', async ({ page }) => {
    await page.emulateMedia({ forcedColors: 'active' });
    const line = (name: string) =>
      page.getByRole('tab', { name }).evaluate((tab) => getComputedStyle(tab.parentElement!).borderBottomWidth);
    expect([await line('First'), await line('Second')]).toEqual(['3px', '0px']);
  });

  test('close with the middle button; undo brings the sheet back', async ({ page }) => {
    await page.getByRole('tab', { name: 'Second' }).click({ button: 'middle' });
    await expect(page.getByRole('tab')).toHaveText(['First', 'Third']);
    await page.keyboard.press('Control+z');
    await expect(page.getByRole('tab')).toHaveText(['First', 'Second', 'Third']);
  });

  test('are dragged to another place; undo takes them back', async ({ page }) => {
    const box = async (name: string) => (await page.getByRole('tab', { name }).boundingBox())!;
    const [first, third] = [await box('First'), await box('Third')];
    const drag = async () => {
      await page.mouse.move(first.x + 20, first.y + 10);
      await page.mouse.down();
      await page.mouse.move(third.x + 20, third.y + 10, { steps: 5 });
    };
    await drag();
    await page.keyboard.press('Escape');
    await page.mouse.up();
    await expect(page.getByRole('tab')).toHaveText(['First', 'Second', 'Third']);
    await drag();
    await page.mouse.up();
    await expect(page.getByRole('tab')).toHaveText(['Second', 'Third', 'First']);
    await expect(page.getByRole('tab', { selected: true })).toHaveText('First');
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('*');
    await page.keyboard.press('Control+z');
    await expect(page.getByRole('tab')).toHaveText(['First', 'Second', 'Third']);
  });

  test('change places by keyboard', async ({ page }) => {
    const selected = page.getByRole('tab', { selected: true });
    await selected.focus();
    await page.keyboard.press('Control+Shift+ArrowRight');
    await expect(page.getByRole('tab')).toHaveText(['Second', 'First', 'Third']);
    await expect(selected).toHaveText('First');
    await expect(selected).toBeFocused();
    await page.keyboard.press('Control+Shift+ArrowRight');
    await page.keyboard.press('Control+Shift+ArrowRight');
    await expect(page.getByRole('tab')).toHaveText(['Second', 'Third', 'First']);
    await page.keyboard.press('Control+Shift+ArrowLeft');
    await expect(page.getByRole('tab')).toHaveText(['Second', 'First', 'Third']);
  });

  test('use the room that there is', async ({ page }) => {
    const width = async () => (await page.getByRole('tab', { name: 'First' }).locator('..').boundingBox())!.width;
    await page.setViewportSize({ width: 1400, height: 600 });
    await expect.poll(width).toBe(240);
    await page.setViewportSize({ width: 600, height: 600 });
    await expect.poll(width).toBeLessThan(180);
    await page.setViewportSize({ width: 320, height: 600 });
    await expect.poll(width).toBe(112);
  });

  test('do everything by keyboard', async ({ page }) => {
    const selected = page.getByRole('tab', { selected: true });
    await selected.focus();
    await page.keyboard.press('ArrowRight');
    await expect(selected).toHaveText('Second');
    await expect(selected).toBeFocused();
    await page.keyboard.press('End');
    await expect(selected).toHaveText('Third');
    await page.keyboard.press('ArrowRight');
    await expect(page.getByRole('button', { name: 'Add sheet' })).toBeFocused();
    await page.keyboard.press('ArrowLeft');
    await expect(selected).toBeFocused();
    await page.keyboard.press('Home');
    await expect(selected).toHaveText('First');
    await page.keyboard.press('Delete');
    await expect(page.getByRole('tab')).toHaveText(['Second', 'Third']);
    await expect(selected).toBeFocused();
    await page.keyboard.press('Delete');
    await expect(page.getByRole('tab')).toHaveText(['Second']);
    await expect(selected).toBeFocused();
  });
});

test('a strip of many tabs scrolls to the one that is shown', async ({ page, enter, expectAccessible }) => {
  const many = documentText(
    ...Array.from({ length: 1000 }, (_, at) => ({
      id: `${at}`,
      displayName: `Sheet ${at}`,
    })),
  );
  await stubNativeHost(page, {
    args: { filePath: PATH },
    files: { [PATH]: many },
  });
  await enter();
  await page.getByRole('tab', { name: 'Sheet 0', exact: true }).focus();
  await page.keyboard.press('End');
  const last = page.getByRole('tab', { name: 'Sheet 999' });
  await expect(last).toBeInViewport({ ratio: 1 });
  await expect(last).toBeFocused();
  await expect(last).toHaveAttribute('aria-posinset', '1000');
  await expect(last).toHaveAttribute('aria-setsize', '1000');
  expect(await page.getByRole('tab').count()).toBeLessThan(100);
  await expectAccessible();
  await page.mouse.move(400, 50);
  await page.mouse.wheel(0, -1_000_000);
  await expect(page.getByRole('tab', { name: 'Sheet 0', exact: true })).toBeInViewport({ ratio: 1 });
});

test('tabs have their width from the first frame on', async ({ page, enter }) => {
  await stubNativeHost(page, { args: { filePath: PATH }, files: { [PATH]: three } });
  await page.addInitScript(() => {
    const widths: number[] = [];
    const note = () => {
      for (const tab of document.querySelectorAll('[role="tab"]')) widths.push(tab.getBoundingClientRect().width);
      requestAnimationFrame(note);
    };
    requestAnimationFrame(note);
    Object.assign(window, { widths });
  });
  await enter();
  const noted = () => page.evaluate(() => (window as unknown as { widths: number[] }).widths);
  await expect.poll(async () => (await noted()).length).toBeGreaterThan(30);
  const widths = await noted();
  expect(new Set(widths)).toEqual(new Set([widths.at(-1)]));
});

test('the tab of the sheet that is shown is in view again when the tool is', async ({ page, enter }) => {
  const many = Array.from({ length: 60 }, (_, at) => ({ id: `${at}`, displayName: `Sheet ${at}` }));
  await stubNativeHost(page, { choices: [PATH], files: { [PATH]: documentText(...many) } });
  await enter();
  await page.keyboard.press('Control+o');
  await page.getByRole('tab', { name: 'Sheet 0', exact: true }).focus();
  await page.keyboard.press('End');
  const last = page.getByRole('tab', { name: 'Sheet 59' });
  await expect(last).toBeInViewport({ ratio: 1 });
  await page.getByRole('link', { name: 'About the app' }).click();
  await expect(page.getByRole('tab')).toHaveCount(0);
  await page.getByRole('navigation').getByRole('link', { name: 'Words' }).click();
  await expect(last).toBeInViewport({ ratio: 1 });
});
