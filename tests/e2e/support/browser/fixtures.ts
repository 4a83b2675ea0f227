import AxeBuilder from '@axe-core/playwright';
import { expect, test as base } from '@playwright/test';
import { dist } from '../shared/paths';
import { faintTexts } from './contrast';
import { type PageServer, servePage } from './pageServer';

interface Fixtures {
  /** Errors on the page's console so far. What is still in the list at the end fails the test. */
  problems: string[];
  /** Opens the page at "/", the only place where it can be entered, and waits until it can be used. */
  enter: () => Promise<void>;
  /** Fails when the page as it is now has something that people with assistive technology cannot use. */
  expectAccessible: () => Promise<void>;
}

export const test = base.extend<Fixtures, { server: PageServer }>({
  server: [
    async ({}, use) => {
      const server = await servePage(dist);
      await use(server);
      await server.close();
    },
    { scope: 'worker' },
  ],
  problems: async ({}, use) => use([]),
  page: async ({ page, problems }, use) => {
    page.on('pageerror', (error) => problems.push(error.message));
    page.on('console', (message) => {
      if (message.type() === 'error') problems.push(message.text());
    });
    await use(page);
    expect(problems).toEqual([]);
  },
  enter: async ({ page, server }, use) => {
    await use(async () => {
      await page.goto(server.url);
      // The page shows nothing before it listens to the keyboard. While it fades from one route to the next it shows two.
      await page.getByRole('main').first().waitFor();
    });
  },
  expectAccessible: async ({ page }, use) => {
    await use(async () => {
      // Half-faded text would be measured with half its contrast.
      await page.waitForFunction(() => document.getAnimations().every(({ playState }) => playState === 'finished'));
      // The page has no frames, which are what the other mode is for: it reports from a page that it opens. Nor does
      // anybody read what is in order. Both take more than twice the time of the checks.
      const { violations } = await new AxeBuilder({ page })
        .setLegacyMode()
        .options({
          rules: { 'target-size': { enabled: true } }, // off unless asked for
          resultTypes: ['violations'],
          selectors: false,
        })
        .analyze();
      expect(await faintTexts(page)).toEqual([]); // the other checks give up where one element may lie over another
      expect(violations.map(({ id, nodes }) => [id, nodes.map(({ html }) => html)])).toEqual([]);
    });
  },
});

export { expect };
