import type { Page } from '@playwright/test';
import { readFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { test } from '../support/browser/fixtures';
import { stubNativeHost } from '../support/browser/nativeHost';
import { documentText } from '../support/shared/documents';

const docs = fileURLToPath(new URL('../../../docs/', import.meta.url));
const sample = readFileSync(new URL('../../../sample.words.tessary', import.meta.url), 'utf8');
/** The initial hash value of SHA-512, then that of SHA-384, as FIPS 180-4 gives them. */
const INITIAL_HASHES =
  '0x6a09e667f3bcc908bb67ae8584caa73b3c6ef372fe94f82ba54ff53a5f1d36f1510e527fade682d19b05688c2b3e6c1f1f83d9abfb41bd6b' +
  '5be0cd19137e2179cbbb9d5dc1059ed8629a292a367cd5079159015a3070dd17152fecd8f70e593967332667ffc00b318eb44a8768581511' +
  'db0c2e0d64f98fa747b5481dbefa4fa4';
const PATH = '/home/me/sample.words.tessary';

test.use({ viewport: { width: 1280, height: 800 }, permissions: ['clipboard-read', 'clipboard-write'] });

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

test('words of 1024 bits', async ({ page, enter }) => {
  const text = documentText({ displayName: 'SHA-512 and SHA-384', int: INITIAL_HASHES, intResolution: 1024 });
  await stubNativeHost(page, { args: { filePath: PATH }, files: { [PATH]: text } });
  await enter();
  await page.getByRole('tab', { name: 'SHA-512 and SHA-384' }).waitFor();
  await picture(page, 'words-1024');
});

test('named bits', async ({ page, enter }) => {
  const text = documentText({ displayName: 'Status', int: '0xC0000094', intResolution: 32 });
  await stubNativeHost(page, { args: { filePath: PATH }, files: { [PATH]: text } });
  await enter();
  await page.evaluate(() => navigator.clipboard.writeText('severity 31:30\ncustomer 29\nfacility 27:16\ncode 15:0'));
  await page.locator('canvas').first().focus();
  await page.keyboard.press('Control+v');
  await page.getByRole('toolbar', { name: 'Names of bits' }).getByText('severity').click();
  await picture(page, 'named-bits');
});

test.describe('with a document', () => {
  test.beforeEach(async ({ page, enter }) => {
    await stubNativeHost(page, { args: { filePath: PATH }, files: { [PATH]: sample } });
    await enter();
    await page.getByRole('tab', { name: 'Pi as a double' }).click();
  });

  test('words of 64 bits', async ({ page }) => picture(page, 'words-64'));

  test('the word inspector', async ({ page }) => {
    await page.getByRole('group', { name: 'Int 64 word 1' }).getByRole('textbox', { name: 'Value' }).focus();
    await page.keyboard.press('Control+i');
    await page.getByText('3.141592653589793115997963468544185161590576171875').waitFor();
    await picture(page, 'word-inspector');
  });

  test('the float view', async ({ page }) => {
    await page.getByRole('button', { name: /^Converters/ }).click();
    await picture(page, 'converters');
    await page.getByRole('option', { name: 'FLOAT' }).click();
    await page.keyboard.press('Escape');
    await picture(page, 'words-float');
  });

  test('the choice of resolutions', async ({ page }) => {
    await page.getByRole('button', { name: /^Resolution/ }).click();
    await picture(page, 'resolutions');
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
    await page.getByRole('alert').waitFor();
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
