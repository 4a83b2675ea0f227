import { chromium, expect, type Page, test as base } from '@playwright/test';
import { existsSync, mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { type PageServer, servePage } from '../e2e/support/browser/pageServer';
import { dist } from '../e2e/support/shared/paths';
import { filesIn, run, version, webZip, withoutLicence } from './packages';

interface Fixtures {
  folder: string;
  /** A static server without any rules of its own: what is no file is a 404. */
  server: PageServer;
  /** Errors in the browser's console so far. */
  problems: string[];
}

const test = base.extend<Fixtures>({
  folder: async ({}, use) => {
    const folder = mkdtempSync(join(tmpdir(), 'tessary-web-'));
    run('unzip', '-q', webZip, '-d', join(folder, 'page'));
    await use(folder);
    rmSync(folder, { recursive: true, force: true, maxRetries: 5 });
  },
  server: async ({ folder }, use) => {
    const server = await servePage(join(folder, 'page'));
    await use(server);
    await server.close().catch(() => {}); // a test may have closed it
  },
  problems: async ({}, use) => use([]),
  page: async ({ folder, launchOptions, problems }, use) => {
    // A profile of its own: in private windows nothing can be installed.
    const context = await chromium.launchPersistentContext(join(folder, 'profile'), launchOptions);
    const [page] = context.pages();
    page!.on('pageerror', (error) => problems.push(error.message));
    page!.on('console', (message) => {
      if (message.type() === 'error') problems.push(`${message.text()} ${message.location().url}`);
    });
    await use(page!);
    await context.close();
  },
});

/** Visits the page once, until its worker has all that is needed without a network. */
async function visit(page: Page, server: PageServer) {
  await page.goto(server.url);
  await expect(page.getByRole('link', { name: 'Open Words Tool' })).toBeVisible();
  await page.evaluate(async () => navigator.serviceWorker.ready);
}

test('the zip holds the page, and the licences of every library in it', () => {
  const files = filesIn(webZip);
  for (const name of ['index.html', 'sw.js', 'registerSW.js', 'manifest.webmanifest']) expect(files).toContain(name);
  const licences = run('unzip', '-p', webZip, 'LICENCES.txt');
  expect(withoutLicence('web', licences)).toEqual([]);
  for (const name of ['workbox-core', 'SIL OPEN FONT LICENSE']) expect(licences).toContain(name);
});

test('it is the page of the desktop program but for the registration of its worker', ({ folder }) => {
  const files = filesIn(webZip).filter((name) => existsSync(join(dist, name)));
  expect(files).toHaveLength(32);
  const different = files.filter(
    (name) => !readFileSync(join(dist, name)).equals(readFileSync(join(folder, 'page', name))),
  );
  expect(different).toEqual(['index.html', 'sw.js']);
});

test('from a static server it can be installed as an app', async ({ page, server }) => {
  await visit(page, server);
  const devtools = await page.context().newCDPSession(page);
  const { errors, url } = await devtools.send('Page.getAppManifest');
  expect({ errors, url }).toEqual({ errors: [], url: `${server.url}/manifest.webmanifest` });
  const { installabilityErrors } = await devtools.send('Page.getInstallabilityErrors');
  expect(installabilityErrors).toEqual([]);
});

test('after one visit it works without its server, from every address of the page', async ({
  page,
  server,
  problems,
}) => {
  await visit(page, server);
  await server.close();
  await page.reload();
  await expect(page.getByText(version)).toBeVisible();
  await page.getByRole('link', { name: 'Open Words Tool' }).click();
  await page.getByRole('link', { name: 'Create Document' }).click();
  const value = page.getByRole('group', { name: 'Int 64 word 1' }).getByRole('textbox', { name: 'Value' });
  await value.fill('77');
  await value.press('Enter');
  await expect(page.getByRole('group', { name: 'Int 32 word 1' }).getByRole('textbox', { name: 'Value' })).toHaveValue(
    '77',
  );
  expect(await page.evaluate(async () => (await document.fonts.ready).check('400 16px Inter'))).toBe(true);

  page.on('dialog', (dialog) => dialog.accept());
  await page.goto(`${server.url}/tools/words`);
  await expect(value).toHaveValue('77');
  await page.goto(`${server.url}/settings`);
  await expect(page.locator('#root')).not.toBeEmpty();
  expect(problems).toEqual([]);
});

test('the page of the desktop program registers no worker', async ({ page }) => {
  const server = await servePage(dist);
  await page.goto(server.url);
  await expect(page.getByRole('link', { name: 'Open Words Tool' })).toBeVisible();
  await page.waitForLoadState('networkidle');
  expect(await page.evaluate(async () => (await navigator.serviceWorker.getRegistrations()).length)).toBe(0);
  await server.close();
});
