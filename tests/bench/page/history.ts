// What a full history of a sheet of 1024 bits takes of the page's memory, in Chromium.
import { chromium, type Page } from '@playwright/test';
import { execFileSync } from 'node:child_process';
import { fileURLToPath } from 'node:url';
import { servePage } from '../../e2e/support/browser/pageServer.ts';

const STEPS = 1000;
/** Megabytes. */
const MOST = 10;
/** By then no page is on its way in or out any more, in milliseconds. */
const FADED = 2000;
const DIST = fileURLToPath(new URL('../../../web/dist', import.meta.url));

const documentText = JSON.stringify({
  tool: 'words',
  version: 1,
  sheets: [{ id: '0', displayName: 'Sheet', int: '0x1', intResolution: 1024, numberDefinitions: [] }],
});

/** A native host that has the document and saves it, so that a history is given up with what is saved. */
function host(text: string): void {
  Object.assign(window, {
    readFile: async () => ({ success: true, data: text }),
    writeFile: async () => ({ success: true }),
    showSaveDialog: async () => ({ success: false, error: 'user-cancelled' }),
    tessary: { backend: { implementation: 'cpp', msPackageName: null }, args: { error: null, filePath: '/bench' } },
  });
}

const value = (page: Page) => page.getByRole('textbox', { name: 'Value' }).first().inputValue();

const shown = (page: Page) => page.locator('[data-operation="random"]').first().waitFor();

/** Fills the whole word with random bits, one step each, and lets the page keep its record after each. */
async function randomize(page: Page, steps: number): Promise<void> {
  await page.evaluate(async (count) => {
    const button = document.querySelector<HTMLElement>('[aria-label="Int 1024 word 1"] [data-operation="random"]')!;
    for (let step = 0; step < count; step++) {
      dispatchEvent(new KeyboardEvent('keydown', { key: 'Enter' }));
      button.click();
      await new Promise((resolve) => setTimeout(resolve));
    }
  }, steps);
}

async function undoAll(page: Page): Promise<void> {
  await page.evaluate(async (count) => {
    for (let step = 0; step < count; step++) {
      dispatchEvent(new KeyboardEvent('keydown', { key: 'z', ctrlKey: true }));
      if (step % 50 === 0) await new Promise((resolve) => setTimeout(resolve));
    }
  }, STEPS);
}

async function measure(page: Page): Promise<number> {
  const session = await page.context().newCDPSession(page);
  const used = async () => {
    await session.send('HeapProfiler.collectGarbage');
    return (await session.send('Runtime.getHeapUsage')).usedSize;
  };
  /** The same document again, without a history. */
  const open = async () => {
    await page.keyboard.press('Control+s');
    await page.getByRole('link', { name: 'About the app' }).click();
    await page.waitForFunction(() => location.pathname === '/');
    await page.waitForTimeout(FADED);
    await shown(page);
  };
  await randomize(page, STEPS); // Warms the page up.
  await open();
  const begin = await value(page);
  const before = await used();
  await randomize(page, STEPS);
  const after = await used();
  if ((await value(page)) === begin) throw new Error('Nothing changed');
  await undoAll(page);
  if ((await value(page)) !== begin) throw new Error(`The history does not hold ${STEPS} steps`);
  return (after - before) / 1e6;
}

const server = await servePage(DIST);
const executablePath = execFileSync('sh', ['-c', 'command -v chromium'], { encoding: 'utf8' }).trim();
const args = ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking'];
const browser = await chromium.launch({ executablePath, args });
try {
  const page = await browser.newPage({ viewport: { width: 1280, height: 800 } });
  await page.addInitScript(host, documentText);
  await page.goto(server.url);
  await shown(page);
  const megabytes = await measure(page);
  const passed = megabytes <= MOST;
  const text = `${megabytes.toFixed(1)} MB, at most ${MOST} MB`;
  console.log(`${passed ? 'ok  ' : 'MISS'} history of ${STEPS.toLocaleString('en')} steps at 1024 bits: ${text}`);
  if (!passed) process.exitCode = 1;
} finally {
  await browser.close();
  await server.close();
}
