// How long the built page takes from its start until it can be used, in Chromium and in the program's own window.
import { type Browser, chromium } from '@playwright/test';
import { execFileSync, spawn } from 'node:child_process';
import { once } from 'node:events';
import { copyFileSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { type AddressInfo, createServer } from 'node:net';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { servePage } from '../../e2e/support/browser/pageServer.ts';
import { Inspector } from '../../e2e/support/linux/inspector.ts';
import { Session } from '../host/session.ts';

const ROUNDS = 9;
const folder = (path: string) => fileURLToPath(new URL(path, import.meta.url));
const DIST = folder('../../../web/dist');
const FLOOR = folder('../../../build/bench/page');
const PROGRAM = folder('../../../build/linux/tessary');

interface Start {
  name: string;
  /** What has to be on the page. */
  selector: string;
  documentText?: string;
}

const FIELD = '[role=tabpanel] [aria-label="Value"]';
const starts: Start[] = [
  { name: 'the welcome page', selector: 'a[href="/tools/words"]:not([aria-label])' },
  { name: 'a document of 10 sheets', selector: FIELD, documentText: documentOf(10) },
  { name: 'a document of 1,000 sheets', selector: FIELD, documentText: documentOf(1000) },
];

function documentOf(count: number): string {
  const sheets = Array.from({ length: count }, (_, at) => ({
    id: `sheet-${at}`,
    displayName: `Sheet ${at}`,
    int: `0x${(at * 0x9e3779b9).toString(16)}`,
    intResolution: 64,
    numberDefinitions: [],
  }));
  return JSON.stringify({ tool: 'words', version: 1, sheets });
}

/** Runs in the page: the moment of the first frame that shows the element, in milliseconds of the wall clock. */
function shownAt(selector: string): Promise<number> {
  return new Promise((resolve) => {
    const look = () => {
      if (document.querySelector(selector) === null) return requestAnimationFrame(look);
      return requestAnimationFrame(() => resolve(performance.timeOrigin + performance.now()));
    };
    look();
  });
}

/**
 * Leaves errors without their stacks while the page starts. A browser that is driven works out every function's position in
 * the script at the first error that is made, as libraries do ahead: a tenth of the start, which no user waits for.
 */
const withoutStacks = () => void (Error.stackTraceLimit = 0);

async function inChromium(browser: Browser, url: string, { selector, documentText }: Start): Promise<number> {
  const context = await browser.newContext({ viewport: { width: 800, height: 600 } });
  const page = await context.newPage();
  await page.addInitScript(withoutStacks);
  await page.addInitScript((text: string | undefined) => {
    const args = { error: null, filePath: text === undefined ? null : '/bench' };
    Object.assign(window, {
      readFile: async () => ({ success: true, data: text }),
      tessary: { backend: { implementation: 'cpp', msPackageName: null }, args },
    });
  }, documentText);
  await page.goto(url, { waitUntil: 'commit' });
  const started = await page.evaluate(() => performance.timeOrigin);
  const shown = await page.evaluate(shownAt, selector);
  await context.close();
  return shown - started;
}

/** The page of plain elements, from its start until it shows one sheet. */
async function floorInChromium(browser: Browser, url: string): Promise<number> {
  const page = await browser.newPage({ viewport: { width: 800, height: 600 } });
  await page.addInitScript(withoutStacks);
  await page.goto(url, { waitUntil: 'load' });
  const took = await page.evaluate(
    () =>
      new Promise<number>((resolve) => {
        (window as unknown as { showSheet: (bits: number, value: string) => void }).showSheet(64, '0xff');
        requestAnimationFrame(() => requestAnimationFrame(() => resolve(performance.now())));
      }),
  );
  await page.close();
  return took;
}

/** From the start of the process. */
async function inProgram(session: Session, { selector, documentText }: Start): Promise<number> {
  const file = join(session.folder, 'document.words.tessary');
  if (documentText !== undefined) writeFileSync(file, documentText);
  const port = await freePort();
  const env = { ...session.env, WEBKIT_INSPECTOR_HTTP_SERVER: `127.0.0.1:${port}` };
  const started = Date.now();
  const program = spawn(join(session.folder, 'tessary'), documentText === undefined ? [] : [file], {
    env,
    stdio: 'ignore',
  });
  try {
    const page = await Inspector.connect(port, () => program.exitCode === null);
    for (;;) {
      const loaded = await page.evaluate(() => location.protocol === 'http:').catch(() => false);
      if (loaded) break;
    }
    const shown = await page.evaluate(shownAt, selector);
    page.disconnect();
    return shown - started;
  } finally {
    program.kill();
    await once(program, 'exit');
  }
}

async function freePort(): Promise<number> {
  const server = createServer();
  await new Promise<void>((resolve) => server.listen(0, '127.0.0.1', resolve));
  const { port } = server.address() as AddressInfo;
  await new Promise((resolve) => server.close(resolve));
  return port;
}

function report(name: string, milliseconds: number[], floor?: number[]) {
  const median = (all: number[]) => all.toSorted((a, b) => a - b)[all.length >> 1]!;
  const ratio = floor === undefined ? '' : `, ${(median(milliseconds) / median(floor)).toFixed(2)} times the floor`;
  console.log(`  ${name}: ${median(milliseconds).toFixed(0)} ms${ratio}`);
}

/** One sample of each in every round, so that what else the machine does hits all alike. */
async function interleaved<Key>(keys: readonly Key[], sample: (key: Key) => Promise<number>) {
  const samples = new Map<Key, number[]>(keys.map((key) => [key, []]));
  for (let round = 0; round <= ROUNDS; round++) {
    for (const key of keys) {
      const took = await sample(key);
      if (round > 0) samples.get(key)!.push(took); // the first round fills caches
    }
  }
  return samples;
}

async function measureChromium(): Promise<void> {
  const executablePath = execFileSync('sh', ['-c', 'command -v chromium'], { encoding: 'utf8' }).trim();
  const args = ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking'];
  const browser = await chromium.launch({ executablePath, args });
  const [page, floor] = [await servePage(DIST), await servePage(FLOOR)];
  const inBrowser = await interleaved([...starts, undefined], (start) =>
    start === undefined ? floorInChromium(browser, floor.url) : inChromium(browser, page.url, start),
  );
  console.log(`From the start of the page until it is shown, in Chromium, medians of ${ROUNDS} interleaved rounds`);
  for (const start of starts) report(start.name, inBrowser.get(start)!, inBrowser.get(undefined));
  report('the floor page, one sheet', inBrowser.get(undefined)!);
  await Promise.all([browser.close(), page.close(), floor.close()]);
}

async function measureProgram(): Promise<void> {
  const home = mkdtempSync(join(tmpdir(), 'tessary-bench-'));
  const session = await Session.start(home);
  copyFileSync(PROGRAM, join(home, 'tessary'));
  try {
    const inWindow = await interleaved(starts, (start) => inProgram(session, start));
    console.log(
      `From the start of the program until it is shown in its window, medians of ${ROUNDS} interleaved rounds`,
    );
    for (const start of starts) report(start.name, inWindow.get(start)!);
  } finally {
    await session.stop();
    rmSync(home, { recursive: true, force: true });
  }
}

await measureChromium();
await measureProgram();
