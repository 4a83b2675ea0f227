// How long the built page takes from its start until it can be used, in Chromium and in the program's own window.
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { copyFileSync, cpSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { type AddressInfo, createServer } from 'node:net';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { servePage } from '../../e2e/support/browser/pageServer.ts';
import { Inspector } from '../../e2e/support/linux/inspector.ts';
import { Session } from '../host/session.ts';
import { PlainChromium } from './plainChromium.ts';

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

/** The built page with a script before its own, which leaves for "about:blank#MILLISECONDS" once the page is shown. */
function inChromium({ selector, documentText }: Start): string {
  const args = { error: null, filePath: documentText === undefined ? null : '/bench' };
  const host = { backend: { implementation: 'cpp', msPackageName: null }, args };
  return `
    Object.assign(window, {
      readFile: async () => ({ success: true, data: ${JSON.stringify(documentText)} }),
      tessary: ${JSON.stringify(host)},
    });
    (${shownAt.toString()})(${JSON.stringify(selector)}).then(${leave.toString()});`;
}

/** The same for the page of plain elements, which shows one sheet. */
const ON_FLOOR = `
  addEventListener('load', () => {
    showSheet(64, '0xff');
    requestAnimationFrame(() =>
      requestAnimationFrame(() => (${leave.toString()})(performance.timeOrigin + performance.now())));
  });`;

function leave(shown: number): void {
  location.href = `about:blank#${shown - performance.timeOrigin}`;
}

/** Shown before the page, so that the start of a process for it does not count. */
const BEFORE = '<script>cookieStore.onchange = () => location.replace("/")</script>';

/** Copies of a built page, each with a script of its own before the page's. */
function copiesWith(built: string, scripts: readonly string[]): string[] {
  return scripts.map((script) => {
    const copy = mkdtempSync(join(tmpdir(), 'tessary-page-'));
    cpSync(built, copy, { recursive: true });
    writeFileSync(join(copy, 'first.js'), script);
    const html = readFileSync(join(built, 'index.html'), 'utf8');
    writeFileSync(join(copy, 'index.html'), html.replace('<head>', '<head><script src="/first.js"></script>'));
    writeFileSync(join(copy, 'before.html'), BEFORE);
    return copy;
  });
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
  const floor = { name: 'the floor page, one sheet' };
  const pages = [...starts, floor];
  const folders = [...copiesWith(DIST, starts.map(inChromium)), ...copiesWith(FLOOR, [ON_FLOOR])];
  const servers = await Promise.all(folders.map(servePage));
  const browser = await PlainChromium.start();
  try {
    const samples = await interleaved(pages, async (page) =>
      Number(await browser.lastWords(`${servers[pages.indexOf(page)]!.url}/before.html`)),
    );
    console.log(`From the start of the page until it is shown, in Chromium, medians of ${ROUNDS} interleaved rounds`);
    for (const start of starts) report(start.name, samples.get(start)!, samples.get(floor));
    report(floor.name, samples.get(floor)!);
  } finally {
    await browser.stop();
    await Promise.all(servers.map((server) => server.close()));
    for (const copy of folders) rmSync(copy, { recursive: true });
  }
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
