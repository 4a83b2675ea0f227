import type { Page } from '@playwright/test';
import { execFileSync } from 'node:child_process';
import { expect, test } from '../support/browser/fixtures';
import { servePage } from '../support/browser/pageServer';
import { documentText } from '../support/shared/documents';
import { root } from '../support/shared/paths';

interface EditorWindow {
  posted: { type: string; data?: { sheets: unknown[] } }[];
}

/** What an editor with a light theme puts before the page's own styles. */
const LIGHT_STYLES = `
  html { scrollbar-color: rgba(100, 100, 100, 0.4) #ffffff; }
  body { background-color: #ffffff; color: #3b3b3b; font: 13px sans-serif; margin: 0; padding: 0 20px; }
  img, video { max-width: 100%; max-height: 100%; }
  a, a code { color: #005fb8; }
  code { color: #3b3b3b; background-color: rgba(0, 0, 0, 0.12); }
  kbd { color: #3b3b3b; background-color: rgba(221, 221, 221, 0.4); border: 1px solid #cccccc; padding: 1px 3px; }
`;

/** Makes the page believe that an editor extension shows it. */
async function stubEditor(page: Page): Promise<void> {
  await page.addInitScript((styles) => {
    history.replaceState(null, '', './web-view?id=1'); // none of the page's own routes
    document.addEventListener('DOMContentLoaded', () => {
      const element = Object.assign(document.createElement('style'), { textContent: styles });
      document.head.prepend(element);
      document.body.classList.add('vscode-light');
    });
    const posted: unknown[] = [];
    let state: unknown;
    Object.assign(window, {
      posted,
      acquireVsCodeApi: () => ({
        postMessage: (message: unknown) => posted.push(JSON.parse(JSON.stringify(message))),
        getState: () => state,
        setState: (next: unknown) => (state = next),
      }),
    });
  }, LIGHT_STYLES);
}
const posted = (page: Page) => page.evaluate(() => (window as unknown as EditorWindow).posted);
const send = (page: Page, rawContent: string) =>
  page.evaluate((content) => {
    window.dispatchEvent(
      new CustomEvent('vscode-session-data', {
        detail: { data: { rawContent: content } },
      }),
    );
  }, rawContent);

test.describe('in an editor extension', () => {
  test.beforeEach(async ({ page, server }) => {
    await stubEditor(page);
    await page.goto(server.url); // shows nothing before the editor sends its document
    await expect.poll(() => posted(page)).toEqual([{ type: 'ready' }]);
  });

  test("the editor's document is shown without rail and document bar", async ({ page, expectAccessible }) => {
    await send(page, documentText({ displayName: 'Sent' }));
    await expect(page.getByRole('tab', { name: 'Sent' })).toBeVisible();
    await expect(page.getByRole('navigation')).toHaveCount(0);
    await expect(page.getByRole('toolbar', { name: 'Document' })).toHaveCount(0);
    await expectAccessible();
  });

  test('the inspector opens by its key, by the menu and by the status line', async ({ page }) => {
    await send(page, documentText({ int: '0x41', intResolution: 64 }));
    const inspector = page.getByRole('dialog', { name: 'Int 64 word 1, all readings' });
    const value = page.getByRole('textbox', { name: 'Value' }).first();
    await value.focus();
    await page.keyboard.press('Control+i');
    await expect(inspector).toBeVisible();
    await page.keyboard.press('Escape');
    await expect(value).toBeFocused();
    await page.keyboard.press('Shift+F10');
    await page.keyboard.press('i');
    await page.keyboard.press('Enter');
    await expect(inspector).toBeVisible();
    await page.keyboard.press('Escape');
    await expect(value).toBeFocused();
    await page.getByText('2 of 64 bits set').click();
    await expect(inspector).toBeVisible();
  });

  test('the editor has its keys also while a menu or a panel is open', async ({ page }) => {
    await send(page, documentText({ int: '0x41', intResolution: 64 }));
    await page.evaluate(() => addEventListener('keydown', ({ key }) => (document.title = key)));
    await page.getByRole('textbox', { name: 'Value' }).first().focus();
    for (const opener of ['Shift+F10', 'Control+i']) {
      await page.keyboard.press(opener);
      await page.locator('[data-popup] :focus').waitFor();
      await page.keyboard.press('F12');
      await expect.poll(() => page.title()).toBe('F12');
      await page.keyboard.press('Escape');
      await page.evaluate(() => (document.title = ''));
    }
  });

  test('a document that it sends takes no focus from the editor', async ({ page }) => {
    await send(page, documentText({ displayName: 'Sent' }));
    await expect(page.getByRole('textbox', { name: 'Value' }).first()).toBeVisible();
    await expect(page.locator('body')).toBeFocused();
  });

  test('the last sheet has no close button, two have', async ({ page }) => {
    await send(page, documentText({ displayName: 'Sent' }));
    await expect(page.getByRole('tab', { name: 'Sent' })).toBeVisible();
    await expect(page.getByRole('button', { name: /^Close/ })).toHaveCount(0);
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect(page.getByRole('button', { name: /^Close/ })).toHaveCount(2);
  });

  test('edits reach the editor; leaving never asks', async ({ page }) => {
    await send(page, documentText({ displayName: 'Sent' }));
    await expect(page.getByRole('tab', { name: 'Sent' })).toBeVisible();
    await page.getByRole('button', { name: 'Add sheet' }).click(); // too early to be reported before 500 ms are over
    await expect.poll(() => posted(page)).toHaveLength(2);
    const update = (await posted(page)).at(-1)!;
    expect(update.type).toBe('updateDocument');
    expect(update.data!.sheets).toHaveLength(2);
    const closed = page.waitForEvent('close');
    await page.close({ runBeforeUnload: true });
    await closed;
  });

  test('what the editor shows next has the last edit', async ({ page }) => {
    await send(page, documentText({ displayName: 'Sent' }));
    const value = page.getByRole('textbox', { name: 'Value' }).first();
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect.poll(() => posted(page)).toHaveLength(2); // updates are let through again
    await page.clock.install(); // no time passes from here on
    await value.fill('42');
    await value.press('Enter');
    await page.keyboard.press('Control+s');
    const { data } = (await posted(page)).at(-1)!;
    expect(data!.sheets.at(-1)).toMatchObject({ int: '0x2a' });
    expect(await posted(page)).toHaveLength(3);
  });

  test('a text that is no document is named in its place, until there is a document again', async ({
    page,
    expectAccessible,
  }) => {
    await send(page, '<<<<<<< ours');
    await expect(page.getByRole('alert')).toHaveText('Failed to parse document data: Invalid JSON');
    await expect(page.getByRole('heading', { name: 'Download' })).toHaveCount(0);
    await expectAccessible();
    await send(page, documentText({ displayName: 'Sent' }));
    await expect(page.getByRole('tab', { name: 'Sent' })).toBeVisible();
    await send(page, '');
    await expect(page.getByRole('alert')).toBeVisible();
    await expect(page.getByRole('tab')).toHaveCount(0);
  });

  test('a document without sheets can be begun, not opened', async ({ page, expectAccessible }) => {
    await send(page, JSON.stringify({ tool: 'words', version: 1, sheets: [] }));
    await expect(page.getByText('Create Document')).toBeVisible();
    await expect(page.getByText('Open Document')).toHaveCount(0);
    await expectAccessible();
    await page.getByText('Create Document').click();
    await expect.poll(() => posted(page)).toHaveLength(2);
  });
});

test("the page fills an editor's web view from edge to edge, dark in a light editor too", async ({ page, server }) => {
  await stubEditor(page);
  await page.goto(server.url);
  await expect.poll(() => posted(page)).toHaveLength(1);
  await send(page, documentText({ displayName: 'Sent' }));
  await expect(page.getByRole('tab', { name: 'Sent' })).toBeVisible();
  expect(await page.getByRole('main').boundingBox()).toEqual({ x: 0, y: 0, width: 800, height: 600 });
  const look = await page.evaluate(() => {
    const { backgroundColor, color, fontFamily } = getComputedStyle(document.body);
    return {
      backgroundColor,
      color,
      font: fontFamily.split(',')[0],
      bars: getComputedStyle(document.documentElement).scrollbarColor,
    };
  });
  expect(look).toEqual({
    backgroundColor: 'rgb(15, 18, 20)',
    color: 'rgb(195, 202, 213)',
    font: 'Inter',
    bars: 'auto',
  });
});

test('the page for editors finds its parts wherever it is put', async ({ page }, testInfo) => {
  const folder = testInfo.outputPath('served');
  execFileSync('npx', ['vite', 'build', '--outDir', `${folder}/some/where`, '--logLevel', 'error'], {
    cwd: `${root}web`,
    env: { ...process.env, TESSARY_PAGE: 'movable' },
  });
  const { url, close } = await servePage(folder);
  await stubEditor(page);
  const missing: string[] = [];
  page.on('response', (response) => response.status() === 404 && missing.push(response.url()));
  await page.goto(`${url}/some/where/index.html`);
  await expect.poll(() => posted(page)).toHaveLength(1);
  await send(page, documentText({ displayName: 'Sent' }));
  await expect(page.getByRole('tab', { name: 'Sent' })).toBeVisible();
  expect(await page.evaluate(() => document.fonts.load('16px Inter').then(({ length }) => length))).toBeGreaterThan(0);
  for (const href of await page
    .locator('link')
    .evaluateAll((links) => links.map((link) => (link as HTMLLinkElement).href)))
    expect((await page.request.get(href)).status(), href).toBe(200);
  expect(missing).toEqual([]);
  await close();
});
