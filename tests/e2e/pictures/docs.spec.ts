import type { Page } from '@playwright/test';
import { readFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { test } from '../support/browser/fixtures';
import { stubNativeHost } from '../support/browser/nativeHost';

const docs = fileURLToPath(new URL('../../../docs/', import.meta.url));
const sample = readFileSync(new URL('../../../sample.words.tessary', import.meta.url), 'utf8');
const PATH = '/home/me/sample.words.tessary';

test.use({ viewport: { width: 1280, height: 800 } });

async function picture(page: Page, name: string) {
  await page.waitForFunction(() => document.getAnimations().every(({ playState }) => playState === 'finished'));
  await page.screenshot({ path: `${docs}${name}.png` });
}

test.describe('without a document', () => {
  test.beforeEach(async ({ enter }) => enter());

  test('the welcome page', async ({ page }) => {
    await page.getByRole('link', { name: 'Open Words Tool' }).waitFor();
    await picture(page, 'welcome');
    await page.getByText('Privacy policy').last().click();
    await picture(page, 'privacy-policy');
  });

  test('the empty tool', async ({ page }) => {
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByText('Welcome to Words tool!').waitFor();
    await picture(page, 'empty-tool');
  });
});

test('a launch error', async ({ page, enter }) => {
  await stubNativeHost(page, { args: { error: 'File not found: ./gone.words.tessary' } });
  await enter();
  await page.getByRole('alert').waitFor();
  await picture(page, 'launch-error');
});

test.describe('with a document', () => {
  test.beforeEach(async ({ page, enter }) => {
    await stubNativeHost(page, { args: { filePath: PATH }, files: { [PATH]: sample } });
    await enter();
    await page.getByRole('tab', { name: 'Pi as a double' }).click();
  });

  test('words of 64 bits', async ({ page }) => picture(page, 'words-64'));

  test('the float view', async ({ page }) => {
    await page.getByRole('button', { name: /^Converters/ }).click();
    await picture(page, 'converters');
    await page.getByRole('option', { name: 'FLOAT' }).click();
    await page.keyboard.press('Escape');
    await picture(page, 'words-float');
  });

  test('words of 1024 bits', async ({ page }) => {
    await page.getByRole('button', { name: /^Resolution/ }).click();
    await picture(page, 'resolutions');
    await page.getByRole('option', { name: '1024' }).click();
    await picture(page, 'words-1024');
  });

  test('colors', async ({ page }) => {
    await page.getByRole('tab', { name: 'Amber, RGBA' }).click();
    await page.getByRole('group', { name: 'Color 32', exact: true }).scrollIntoViewIfNeeded();
    await picture(page, 'words-colors');
  });

  test('a refused input', async ({ page }) => {
    const value = page.getByRole('group', { name: 'Int 64 word 1' }).getByRole('textbox', { name: 'Value' });
    await value.fill('-1');
    await value.press('Enter');
    await page.getByText(/out of range/).waitFor();
    await picture(page, 'refused-input');
  });

  test('the question about unsaved changes, and a tab being renamed', async ({ page }) => {
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await page.getByRole('button', { name: 'Close', exact: true }).click();
    await page.getByText('You have unsaved changes. Do you want to discard them?').waitFor();
    await picture(page, 'unsaved-changes');
    await page.keyboard.press('Escape');
    await page.getByRole('tab', { name: 'Number A' }).dblclick();
    await page.getByRole('textbox', { name: 'Sheet name' }).waitFor();
    await picture(page, 'rename-sheet');
  });
});
