import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

/** A disk and a user that take their time. */
interface SlowWindow {
  pickers: ((name: string | undefined) => void)[];
  writes: { text: string; finish: () => void }[];
  asked: number;
}

/** Pickers and writes that last until the story ends them; as in a browser, no picker opens over another one. */
async function stubSlowFiles(page: Page): Promise<void> {
  await page.addInitScript(() => {
    const slow: SlowWindow = { pickers: [], writes: [], asked: 0 };
    const handle = (name: string) => ({
      kind: 'file',
      name,
      createWritable: async () => {
        let text = '';
        return {
          write: async (chunk: string) => void (text += chunk),
          close: () => new Promise<void>((finish) => slow.writes.push({ text, finish })),
        };
      },
    });
    const showSaveFilePicker = async () => {
      if (slow.pickers.length > 0) throw new DOMException('File picker already active.', 'NotAllowedError');
      slow.asked++;
      const name = await new Promise<string | undefined>((answer) => slow.pickers.push(answer));
      slow.pickers.pop();
      if (name === undefined) throw new DOMException('The user aborted a request.', 'AbortError');
      return handle(name);
    };
    Object.assign(window, { slow, showSaveFilePicker, showOpenFilePicker: () => Promise.reject(new Error()) });
  });
}

const asked = (page: Page) => page.evaluate(() => (window as unknown as { slow: SlowWindow }).slow.asked);

async function answerPicker(page: Page, name: string | undefined): Promise<void> {
  await page.evaluate((given) => (window as unknown as { slow: SlowWindow }).slow.pickers[0]!(given), name);
}

/** Ends the write that is under way. @returns the value that it wrote */
async function finishWrite(page: Page): Promise<string> {
  await page.waitForFunction(() => (window as unknown as { slow: SlowWindow }).slow.writes.length > 0);
  const text = await page.evaluate(() => {
    const { text, finish } = (window as unknown as { slow: SlowWindow }).slow.writes.shift()!;
    finish();
    return text;
  });
  return (JSON.parse(text) as { sheets: { int: string }[] }).sheets[0]!.int;
}

const writes = (page: Page) => page.evaluate(() => (window as unknown as { slow: SlowWindow }).slow.writes.length);
const bar = (page: Page) => page.getByRole('toolbar', { name: 'Document' });
const save = (page: Page) => bar(page).getByRole('button', { name: 'Save', exact: true });
const value = (page: Page) => new WordsTool(page).word(64, 1).value;

test.describe('saves that overlap', () => {
  test.beforeEach(async ({ page, enter }) => {
    await stubSlowFiles(page);
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByRole('link', { name: 'Create Document' }).click();
  });

  test('a double press on Save opens one picker and shows no error', async ({ page }) => {
    await save(page).dblclick();
    await answerPicker(page, 'mine.words.tessary');
    await finishWrite(page);
    await expect(bar(page)).toContainText('mine.words.tessary');
    await expect(save(page)).toBeDisabled();
    expect(await asked(page)).toBe(1);
    expect(await writes(page)).toBe(0);
    expect(await page.getByRole('alert').count()).toBe(0); // now: an error would go by itself
  });

  test('a picker that is dismissed has answered every press', async ({ page }) => {
    await save(page).dblclick();
    await page.keyboard.press('Control+Shift+s');
    await answerPicker(page, undefined);
    await save(page).click();
    await expect.poll(() => asked(page)).toBe(2);
    await expect(bar(page)).toContainText('Untitled.words.tessary*');
    expect(await page.getByRole('alert').count()).toBe(0); // now: an error would go by itself
  });

  test('what was edited while a dialog was open is saved by the second press', async ({ page }) => {
    await save(page).click();
    await enterText(value(page), '1');
    await page.keyboard.press('Control+s');
    await answerPicker(page, 'mine.words.tessary');
    expect(await finishWrite(page)).toBe('0x0');
    expect(await finishWrite(page)).toBe('0x1');
    await expect(save(page)).toBeDisabled();
    expect(await asked(page)).toBe(1);
  });

  test.describe('to a file that is known', () => {
    test.beforeEach(async ({ page }) => {
      await save(page).click();
      await answerPicker(page, 'mine.words.tessary');
      await finishWrite(page);
      await expect(save(page)).toBeDisabled();
      await enterText(value(page), '1');
      await page.keyboard.press('Control+s');
      await enterText(value(page), '2');
    });

    test('follow each other; the mark goes with the last one', async ({ page }) => {
      await page.keyboard.press('Control+s');
      expect(await writes(page)).toBe(1);
      expect(await finishWrite(page)).toBe('0x1');
      await expect.poll(() => writes(page)).toBe(1);
      await expect(bar(page)).toContainText('mine.words.tessary*');
      expect(await finishWrite(page)).toBe('0x2');
      await expect(bar(page)).not.toContainText('*');
    });

    test('leave the mark where the last text written is not the one shown, until undo shows it', async ({ page }) => {
      expect(await finishWrite(page)).toBe('0x1');
      await expect(bar(page)).toContainText('mine.words.tessary*');
      await page.keyboard.press('Control+z');
      await expect(value(page)).toHaveValue('1');
      await expect(bar(page)).not.toContainText('*');
      await page.keyboard.press('Control+z');
      await expect(bar(page)).toContainText('mine.words.tessary*');
    });
  });
});
