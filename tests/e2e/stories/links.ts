import { expect } from '@playwright/test';
import { createServer, type Server } from 'node:http';
import type { AddressInfo } from 'node:net';
import type { LinkRecorder } from '../support/shared/linkRecorder';
import { sampleDocument } from '../support/shared/paths';
import type { RunningProgram } from '../support/shared/runningProgram';

type LinkStoryTest = (
  title: string,
  story: (given: { open: (args?: string[]) => Promise<RunningProgram>; linkRecorder: LinkRecorder }) => Promise<void>,
) => void;

/** The message that the page's promise is rejected with. */
export function complaint(program: RunningProgram, ...given: unknown[]): Promise<string> {
  return program.call('openExternalUrl', ...given).then(
    () => 'no complaint',
    (error: unknown) => (error as Error).message,
  );
}

/** What is no link is refused with its reason. */
export async function expectRefusals(program: RunningProgram, ...more: string[]) {
  const protocol = 'Invalid URL protocol. Only http://, https://, and mailto: are allowed';
  expect(await complaint(program)).toContain('Invalid arguments for openExternalUrl');
  expect(await complaint(program, 7)).toContain('URL must be a string');
  expect(await complaint(program, null)).toContain('URL must be a string');
  for (const url of ['', 'HTTPS://example.org', 'page.html', 'é', ...more]) {
    expect(await complaint(program, url)).toContain(protocol);
  }
}

/** A site that is not the program's, at a loopback address. */
export class OtherSite {
  readonly #server: Server;
  readonly requests: string[] = [];

  constructor() {
    this.#server = createServer((request, response) => {
      this.requests.push(request.url ?? '');
      response.end('<title>another site</title>');
    });
  }

  async start(): Promise<string> {
    await new Promise<void>((resolve) => this.#server.listen(0, '127.0.0.1', resolve));
    return `http://127.0.0.1:${(this.#server.address() as AddressInfo).port}`;
  }

  stop() {
    this.#server.close();
  }
}

/** The ways on which something in the page can lead elsewhere. */
const ways: Record<string, (address: string) => void> = {
  'a script': (address) => location.assign(address),
  'a link': (address) => {
    const link = document.body.appendChild(document.createElement('a'));
    link.href = address;
    link.click();
  },
  'a page that moved': (address) => {
    const moved = document.head.appendChild(document.createElement('meta'));
    moved.httpEquiv = 'refresh';
    moved.content = `0; url=${address}`;
  },
};

/** What becomes of links in the program, on every system. */
export function linkStories(test: LinkStoryTest) {
  for (const url of ['https://example.org/a?b=c&d=%20e#f', 'http://example.org/', 'mailto:someone@example.org']) {
    test(`${new URL(url).protocol} links open in the user's own program`, async ({ open, linkRecorder }) => {
      const program = await open();
      expect(await program.call('openExternalUrl', url)).toBeNull();
      expect(await linkRecorder.opened()).toBe(url);
    });
  }

  test("a link of the welcome page opens in the user's own program", async ({ open, linkRecorder }) => {
    const program = await open();
    await program.shows('IEEE 754 floating point');
    const url = await program.page.evaluate(() => {
      const links = [...document.querySelectorAll('a')];
      links.find((link) => link.textContent === 'IEEE 754 floating point')?.click();
      return location.href;
    });
    expect(await linkRecorder.opened()).toMatch(/^https:\/\//);
    expect(await program.page.evaluate(() => location.href)).toBe(url);
  });

  test("another site is never shown in the window: it opens in the user's own browser", async ({
    open,
    linkRecorder,
  }) => {
    const site = new OtherSite();
    const address = await site.start();
    const program = await open();
    await program.shows('Open Words Tool');
    for (const [name, go] of Object.entries(ways)) {
      const target = `${address}/${name.replaceAll(' ', '-')}`;
      await program.page.evaluate(go, target);
      expect(await linkRecorder.opened(name)).toBe(target);
      expect(await program.page.evaluate(() => location.origin), name).toBe(program.url);
    }
    expect(site.requests).toEqual([]);
    await program.shows('Open Words Tool');
    site.stop();
  });

  test('files and texts are not shown as pages', async ({ open }) => {
    const program = await open();
    await program.shows('Open Words Tool');
    for (const target of [`file://${sampleDocument}`, 'data:text/html,<title>foreign</title>']) {
      const origin = await program.page.evaluate(async (address) => {
        location.assign(address);
        await fetch('/'); // time enough to be taken away
        return location.origin;
      }, target);
      expect(origin, target).toBe(program.url);
    }
    await program.shows('Open Words Tool');
  });
}
