import { expect, test } from '../support/browser/fixtures';
import { hostCalls, stubNativeHost } from '../support/browser/nativeHost';

test.describe('the welcome page', () => {
  test('leads to the Words tool by its button, its heading and the rail', async ({ page, enter, expectAccessible }) => {
    await enter();
    await expect(page).toHaveTitle('Tessary');
    await expectAccessible();
    const rail = page.getByRole('navigation');
    const main = page.getByRole('main');
    for (const way of [
      page.getByRole('link', { name: 'Open Words Tool' }),
      main.getByRole('link', { name: 'Words', exact: true }),
      rail.getByRole('link', { name: 'Words' }),
    ]) {
      await way.click();
      await expect(page).toHaveURL(/\/tools\/words$/);
      await expect(page.getByRole('heading', { name: 'Welcome to Words tool!' })).toBeVisible();
      await rail.getByRole('link', { name: 'About the app' }).click();
      await expect(page.getByRole('heading', { name: 'Tessary', level: 1 })).toBeVisible();
    }
  });

  test('is dark where another page at this address chose a light mode', async ({ page, enter }) => {
    await page.addInitScript(() => {
      localStorage.setItem('joy-mode', 'light');
      localStorage.setItem('joy-color-scheme-light', 'light');
    });
    await enter();
    await expect(page.getByRole('link', { name: 'Open Words Tool' })).toHaveCSS('color', 'rgb(255, 255, 255)');
    await expect(page.locator('html')).toHaveAttribute('data-joy-color-scheme', 'dark');
  });

  test('has an accessible privacy policy that Escape closes', async ({ page, enter, expectAccessible }) => {
    await enter();
    await page.getByRole('link', { name: 'Privacy policy' }).click();
    await expect(page.getByRole('dialog', { name: 'Privacy policy' })).toBeVisible();
    await expectAccessible();
    await page.keyboard.press('Escape');
    await expect(page.getByRole('dialog')).toHaveCount(0);
  });

  test('opens external links in a new tab', async ({ page, enter }) => {
    await enter();
    await expect(page.getByRole('heading', { name: 'Download' })).toBeVisible();
    const links = page.locator('a[target=_blank]');
    expect(await links.count()).toBeGreaterThan(0);
    for (const link of await links.all()) await expect(link).toHaveAttribute('href', /^https:\/\//);
  });

  test('hands external links to a host that opens them, by mouse and by keyboard', async ({ page, enter }) => {
    await stubNativeHost(page);
    await enter();
    const link = page.getByRole('link', { name: 'IEEE 754 floating point' });
    await expect(link).not.toHaveAttribute('href');
    await expect(link).not.toHaveAttribute('target');
    await link.click();
    await link.press('Enter');
    const call = ['openExternalUrl', 'https://en.wikipedia.org/wiki/IEEE_754'];
    expect(await hostCalls(page)).toEqual([call, call]);
    expect(page.context().pages()).toHaveLength(1);
  });

  test('has only resources instead of downloads in a store package', async ({ page, enter, expectAccessible }) => {
    await stubNativeHost(page, {
      msPackageName: 'Maker.Tessary_1.5.4.0_x64__abc',
    });
    await enter();
    await expect(page.getByRole('heading', { name: 'Resources' })).toBeVisible();
    await expect(page.getByRole('link', { name: 'Privacy policy' })).toBeVisible();
    await expect(page.getByRole('heading', { name: 'Download' })).toHaveCount(0);
    await expectAccessible();
  });
});

test.describe('in a browser that allows service workers', () => {
  test.use({ serviceWorkers: 'allow' });

  test('the page registers no service worker and holds no inline script', async ({ page, enter }) => {
    await enter();
    await expect(page.getByRole('heading', { name: 'Tessary', level: 1 })).toBeVisible();
    expect(await page.evaluate(async () => (await navigator.serviceWorker.getRegistrations()).length)).toBe(0);
    await expect(page.locator('script:not([src])')).toHaveCount(0);
  });
});

test("the content policy refuses scripts that are not the page's own", async ({ page, enter, problems }) => {
  await enter();
  const refused = await page.evaluate(
    () =>
      new Promise<string>((resolve) => {
        document.addEventListener('securitypolicyviolation', (event) => resolve(event.effectiveDirective));
        document.body.append(
          Object.assign(document.createElement('img'), {
            src: 'http://127.0.0.1:9/picture.png',
          }),
        );
      }),
  );
  expect(refused).toBe('img-src');
  expect(problems.splice(0)).toEqual([expect.stringContaining('Content Security Policy')]);
});

test('the placeholder for settings is there, but nothing leads to it', async ({ page, enter, expectAccessible }) => {
  await enter();
  await expect(page.getByRole('heading', { name: 'Download' })).toBeVisible();
  await expect(page.locator('a[href*=settings]')).toHaveCount(0);
  await page.evaluate(() => {
    history.pushState({ idx: 1 }, '', '/settings');
    dispatchEvent(new PopStateEvent('popstate', { state: history.state }));
  });
  await expect(page.getByRole('main')).toHaveText('settings');
  await expectAccessible();
});
