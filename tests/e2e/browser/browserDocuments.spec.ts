import type { Page } from '@playwright/test';
import { readFile } from 'node:fs/promises';
import { expect, test } from '../support/browser/fixtures';
import { documentText } from '../support/shared/documents';

/** Takes the pickers away, as in browsers that hand out no lasting rights to files. */
async function withoutPickers(page: Page): Promise<void> {
  await page.addInitScript(() => {
    Reflect.deleteProperty(window, 'showOpenFilePicker');
    Reflect.deleteProperty(window, 'showSaveFilePicker');
  });
}

interface PickerWindow {
  asked: unknown[];
  written: Record<string, string>;
}

/** Pickers whose answers are given: a file's name, or null for a dialog that the user dismisses. */
async function stubPickers(page: Page, choices: (string | null)[], content = ''): Promise<void> {
  await page.addInitScript(
    ([given, text]) => {
      const asked: unknown[] = [];
      const written: Record<string, string> = {};
      const choices = [...given];
      const choose = (kind: string) => async (options: unknown) => {
        asked.push([kind, options]);
        const name = choices.shift();
        if (!name) throw new DOMException('The user aborted a request.', 'AbortError');
        const handle = {
          kind: 'file',
          name,
          getFile: async () => new File([text], name),
          createWritable: async () => {
            let buffer = '';
            return {
              write: async (chunk: string) => void (buffer += chunk),
              close: async () => void (written[name] = buffer),
            };
          },
        };
        return kind === 'open' ? [handle] : handle;
      };
      Object.assign(window, {
        asked,
        written,
        showOpenFilePicker: choose('open'),
        showSaveFilePicker: choose('save'),
      });
    },
    [choices, content] as const,
  );
}
const asked = (page: Page) => page.evaluate(() => (window as unknown as PickerWindow).asked);
const written = (page: Page) => page.evaluate(() => (window as unknown as PickerWindow).written);

async function enterTool(page: Page, enter: () => Promise<void>): Promise<void> {
  await enter();
  await page.getByRole('link', { name: 'Open Words Tool' }).click();
}

test.describe('a browser without file handles', () => {
  test.beforeEach(({ page }) => withoutPickers(page));

  test('saves by downloading and opens the download again', async ({ page, enter }) => {
    await enterTool(page, enter);
    await page.getByRole('link', { name: 'Create Document' }).click();
    const downloading = page.waitForEvent('download');
    await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Save', exact: true }).click();
    const download = await downloading;
    expect(download.suggestedFilename()).toBe('Untitled.words.tessary');
    const text = await readFile(await download.path(), 'utf8');
    expect(JSON.parse(text)).toMatchObject({
      tool: 'words',
      version: 1,
      sheets: [{ displayName: 'Number A', int: '0x0' }],
    });
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('Untitled.words.tessary');
    await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');

    const choosing = page.waitForEvent('filechooser');
    await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Open' }).click();
    const changed = text.replace('Number A', 'Read back');
    await (
      await choosing
    ).setFiles({
      name: 'again.words.tessary',
      mimeType: '',
      buffer: Buffer.from(changed),
    });
    await expect(page.getByRole('tab', { name: 'Read back' })).toBeVisible();
    // The page does not know the file's place, so the document counts as not saved yet.
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('again.words.tessary*');
  });

  test('offers only documents, and none by default several', async ({ page, enter }) => {
    await enterTool(page, enter);
    const choosing = page.waitForEvent('filechooser');
    await page.getByRole('link', { name: 'Open Document' }).click();
    const chooser = await choosing;
    expect(chooser.isMultiple()).toBe(false);
    expect(await chooser.element().getAttribute('accept')).toBe('.words.tessary,.tessary');
    await chooser.element().dispatchEvent('cancel');
    await expect(page.locator('input[type=file]')).toHaveCount(0);
    await expect(page.getByRole('alert')).toHaveCount(0);
  });
});

test.describe('a browser with file handles', () => {
  const types = [
    {
      description: 'Tessary Files',
      accept: { 'application/json': ['.words.tessary', '.tessary'] },
    },
  ];

  test('asks for a place once and writes there from then on', async ({ page, enter }) => {
    await stubPickers(page, ['mine.words.tessary', 'other.tessary']);
    await enterTool(page, enter);
    await page.getByRole('link', { name: 'Create Document' }).click();
    const bar = page.getByRole('toolbar', { name: 'Document' });
    const save = bar.getByRole('button', { name: 'Save', exact: true });
    await save.click();
    await expect(bar).toContainText('mine.words.tessary');
    await expect(save).toBeDisabled();
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await save.click();
    await expect(save).toBeDisabled();
    expect(await asked(page)).toEqual([['save', { types, suggestedName: 'Untitled.words.tessary' }]]);
    expect((await written(page))['mine.words.tessary']).toContain('Number B');
    await bar.getByRole('button', { name: 'Save As' }).click();
    await expect(bar).toContainText('other.tessary');
    expect((await asked(page))[1]).toEqual(['save', { types, suggestedName: 'mine.words.tessary' }]);
  });

  test('opens a file and saves to the same', async ({ page, enter }) => {
    await stubPickers(page, ['mine.tessary'], documentText({ displayName: 'Opened' }));
    await enterTool(page, enter);
    await page.getByRole('link', { name: 'Open Document' }).click();
    await expect(page.getByRole('tab', { name: 'Opened' })).toBeVisible();
    await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Save', exact: true }).click();
    await expect.poll(() => written(page)).toHaveProperty(['mine.tessary']);
    expect(await asked(page)).toEqual([['open', { types, multiple: false }]]);
  });

  test('a dismissed dialog says nothing; the document stays unsaved', async ({ page, enter }) => {
    await stubPickers(page, [null, null]);
    await enterTool(page, enter);
    await page.getByRole('link', { name: 'Create Document' }).click();
    const bar = page.getByRole('toolbar', { name: 'Document' });
    await bar.getByRole('button', { name: 'Save', exact: true }).click();
    await expect.poll(async () => (await asked(page)).length).toBe(1);
    await expect(bar).toContainText('Untitled.words.tessary*');
    await expect(page.getByRole('alert')).toHaveCount(0);
  });
});

test.describe('dropping on the page', () => {
  /** Drops files, or a text, on the middle of the page as a file manager does. */
  async function drop(page: Page, things: { name: string; content: string }[] | string): Promise<void> {
    const data = await page.evaluateHandle((given) => {
      const transfer = new DataTransfer();
      if (typeof given === 'string') transfer.setData('text/uri-list', given);
      else for (const { name, content } of given) transfer.items.add(new File([content], name));
      return transfer;
    }, things);
    for (const event of ['dragover', 'drop']) await page.dispatchEvent('main', event, { dataTransfer: data });
  }

  test('a document opens it, after the question about unsaved changes', async ({ page, enter }) => {
    await enter();
    const dropped = {
      name: 'Dropped.WORDS.tessary',
      content: documentText({ displayName: 'Dropped' }),
    };
    await drop(page, [{ name: 'photo.jpg', content: '' }, dropped]);
    await expect(page.getByRole('tab', { name: 'Dropped' })).toBeVisible();
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('Dropped.WORDS.tessary*');
    await drop(page, [{ name: 'next.tessary', content: documentText({ displayName: 'Next' }) }]);
    await page.getByRole('alertdialog').getByRole('button', { name: 'Discard' }).click();
    await expect(page.getByRole('tab')).toHaveText(['Next']);
  });

  test('anything else does no harm', async ({ page, enter }) => {
    await enter();
    const url = page.url();
    await drop(page, [{ name: 'photo.jpg', content: 'no document' }]);
    await expect(page.getByRole('alert')).toHaveText('The provided document is not of a recognized format');
    await drop(page, 'https://example.com/');
    await drop(page, [{ name: 'bad.tessary', content: '{' }]);
    await expect(page.getByText('Failed to parse document data: Invalid JSON')).toBeVisible();
    expect(page.url()).toBe(url);
  });
});
