import { chromium, type Page } from '@playwright/test';
import { execFileSync } from 'node:child_process';
import { readdirSync, statSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { servePage } from '../../e2e/support/browser/pageServer.ts';

const SAMPLES = 31;
const WARM_UP = 20;
const FRAME = 1000 / 60;
const LONG_TASK = 50;
const LARGEST_SCRIPT = 941_628;
const LARGEST_GROWTH = 0.05;
/** Steps that the page can take back; `history.ts` measures what they take. */
const LONGEST_HISTORY = 1000;

const folder = (path: string) => fileURLToPath(new URL(path, import.meta.url));
const DIST = folder('../../../web/dist');
const FLOOR = folder('../../../build/bench/page');

/** Runs on both pages before their own scripts. */
function instruments(documentText: string): void {
  // Made-up events have no pointer that could be captured.
  HTMLElement.prototype.setPointerCapture = () => {};
  const answer = { success: true, data: documentText };
  Object.assign(window, {
    readFile: async () => answer,
    tessary: { backend: { implementation: 'cpp', msPackageName: null }, args: { error: null, filePath: '/bench' } },
    /** Milliseconds from the action to the end of the frame that shows it: script, style, layout and paint. */
    frameOf: (act: () => void) =>
      new Promise<number>((resolve) => {
        requestAnimationFrame(() => {
          const start = performance.now();
          // Comes right after the frame, before what was put off until then, such as storing the sheets.
          void scheduler.postTask(() => resolve(performance.now() - start), { priority: 'user-blocking' });
          act();
        });
      }),
  });
}

declare global {
  interface Window {
    frameOf: (act: () => void) => Promise<number>;
    showSheet: (resolution: number, value: string) => void;
  }
}

const hexDigits = (seed: number) =>
  Array.from({ length: 256 }, (_, at) => (((at + 3) * (seed + 7) * 2654435761) >>> 9).toString(16).at(-1)).join('');
const VALUES = [1, 2].map((seed) => `0xF${hexDigits(seed).slice(1)}`);

/** What is left of the first one after it was cut. */
const CUT_VALUE = `0x${VALUES[0]!.slice(-16)}`;

const documentText = JSON.stringify({
  tool: 'words',
  version: 1,
  sheets: VALUES.map((int, at) => ({
    id: `${at}`,
    displayName: `Sheet ${at}`,
    int,
    intResolution: 1024,
    numberDefinitions: [],
  })),
});

/** Something to be timed on both pages. `round` makes repetitions differ. */
interface Figure {
  name: string;
  limit: number;
  /** Also no longer than one frame. */
  withinFrame?: boolean;
  prepare?: (page: Page, round: number) => Promise<void>;
  app: (page: Page, round: number) => Promise<number>;
  floor: (page: Page, round: number) => Promise<number>;
}

const toggle = (page: Page, round: number) =>
  page.evaluate((at) => {
    const canvas = document.querySelector('canvas')!;
    const { left, top } = canvas.getBoundingClientRect();
    const init = { bubbles: true, button: 0, clientX: left + 60 + 20 * at, clientY: top + 10, pointerId: 1 };
    return window.frameOf(() => {
      canvas.dispatchEvent(new PointerEvent('pointerdown', init));
      canvas.dispatchEvent(new PointerEvent('pointerup', init));
    });
  }, round % 20);

const enter = (page: Page, round: number) =>
  page.evaluate(
    (text) => {
      const field = document.querySelector<HTMLTextAreaElement>('[aria-label="Base 16"]')!;
      field.value = text;
      const event = new KeyboardEvent('keydown', { key: 'Enter', bubbles: true, cancelable: true });
      return window.frameOf(() => void field.dispatchEvent(event));
    },
    VALUES[round % 2]!,
  );

const chooseResolution = async (page: Page, resolution: number) => {
  await page.evaluate(() => {
    const buttons = [...document.querySelectorAll<HTMLElement>('[aria-haspopup="listbox"]')];
    buttons.find(({ textContent }) => textContent.startsWith('Resolution'))!.click();
  });
  return page.evaluate((id) => {
    const option = document.querySelector<HTMLElement>(`[role="option"][data-id="${id}"]`)!;
    return window.frameOf(() => option.click());
  }, resolution);
};

const showOnFloor = (page: Page, resolution: number, value: string) =>
  page.evaluate(([width, text]) => window.frameOf(() => window.showSheet(width, text)), [resolution, value] as const);

const figures: Figure[] = [
  { name: 'toggle a bit at 1024 bits', limit: 2, withinFrame: true, app: toggle, floor: toggle },
  { name: 'Enter in a field at 1024 bits', limit: 2, withinFrame: true, app: enter, floor: enter },
  {
    name: 'switch between two sheets of 1024 bits',
    limit: 3,
    app: (page, round) =>
      page.evaluate(
        (at) => {
          const tab = document.querySelectorAll<HTMLElement>('[role="tab"]')[at]!;
          return window.frameOf(() => tab.click());
        },
        (round + 1) % 2,
      ),
    floor: (page, round) => showOnFloor(page, 1024, VALUES[(round + 1) % 2]!),
  },
  {
    name: 'switch from 1024 to 64 bits',
    limit: 3,
    app: (page) => chooseResolution(page, 64),
    floor: (page) => showOnFloor(page, 64, CUT_VALUE),
    prepare: async (page) => {
      if (await isFloor(page)) await showOnFloor(page, 1024, CUT_VALUE);
      else await chooseResolution(page, 1024);
    },
  },
  {
    name: 'switch from 64 to 1024 bits',
    limit: 3,
    app: (page) => chooseResolution(page, 1024),
    floor: (page) => showOnFloor(page, 1024, CUT_VALUE),
    prepare: async (page) => {
      if (await isFloor(page)) await showOnFloor(page, 64, CUT_VALUE);
      else await chooseResolution(page, 64);
    },
  },
];

/** What can be seen to differ after a timed action, to make sure that it did something. */
const appearance = (page: Page) =>
  page.evaluate(() => {
    const { value } = document.querySelector<HTMLTextAreaElement>('[aria-label="Base 16"]')!;
    return `${document.querySelectorAll('canvas').length} words, ${value}`;
  });

const isFloor = (page: Page) => page.evaluate(() => 'showSheet' in window);

function median(values: readonly number[]): number {
  return [...values].sort((a, b) => a - b)[values.length >> 1]!;
}

const failures: string[] = [];
function check(name: string, passed: boolean, text: string): void {
  console.log(`${passed ? 'ok  ' : 'MISS'} ${name}: ${text}`);
  if (!passed) failures.push(name);
}

async function compare(app: Page, floor: Page, figure: Figure): Promise<void> {
  const times: Record<'app' | 'floor', number[]> = { app: [], floor: [] };
  for (let round = 0; round < SAMPLES + WARM_UP; round++) {
    const pages = [
      ['app', app],
      ['floor', floor],
    ] as const;
    for (const [which, page] of round % 2 ? pages : pages.toReversed()) {
      await page.bringToFront();
      await figure.prepare?.(page, round);
      const before = await appearance(page);
      const time = await figure[which](page, round);
      if ((await appearance(page)) === before) throw new Error(`${figure.name}: nothing changed on the ${which}`);
      if (round >= WARM_UP) times[which].push(time);
    }
  }
  const [page, least] = [median(times.app), median(times.floor)];
  const ratio = page / least;
  const passed = ratio <= figure.limit && (!figure.withinFrame || page <= FRAME);
  check(
    figure.name,
    passed,
    `${ratio.toFixed(2)} times the floor (${page.toFixed(1)} ms to ${least.toFixed(1)} ms, at most ${figure.limit} times)`,
  );
}

/** Moves the end of a range by bits and by lines, which is outlined and read anew in every row. */
async function moveRangeEnd(page: Page): Promise<void> {
  await page.evaluate(() => document.querySelector('canvas')!.focus());
  await page.keyboard.press('End');
  const times: number[] = [];
  for (let round = 0; round < SAMPLES + WARM_UP; round++) {
    const keys = ['ArrowUp', 'ArrowLeft', 'ArrowUp', 'ArrowRight', 'ArrowDown', 'ArrowLeft'];
    const key = keys[round % keys.length]!;
    const { time, isRead } = await page.evaluate(async (pressed) => {
      const status = document.querySelector('[role="status"]')!;
      const before = status.textContent;
      const init = { key: pressed, shiftKey: true, bubbles: true, cancelable: true };
      const event = new KeyboardEvent('keydown', init);
      const frame = await window.frameOf(() => void document.querySelector('canvas')!.dispatchEvent(event));
      return { time: frame, isRead: status.textContent !== before && /\[\d+:\d+\]/.test(status.textContent) };
    }, key);
    if (!isRead) throw new Error('the range was not read anew');
    if (round >= WARM_UP) times.push(time);
  }
  await page.keyboard.press('Escape');
  const [middle, longest] = [median(times), Math.max(...times)];
  const text = `${middle.toFixed(1)} ms, the longest ${longest.toFixed(1)} ms, at most ${FRAME.toFixed(1)} ms`;
  check('move the end of a range at 1024 bits', middle <= FRAME, text);
}

/** Notes how long the page blocks, of all tasks that take 50 ms or more. */
async function checkTasks(page: Page, name: string, act: () => Promise<unknown>): Promise<void> {
  const observer = await page.evaluateHandle(() => {
    const tasks: number[] = [];
    const each = new PerformanceObserver((list) => tasks.push(...list.getEntries().map(({ duration }) => duration)));
    each.observe({ type: 'longtask' });
    return { each, tasks };
  });
  await act();
  const longest = await observer.evaluate(async ({ each, tasks }) => {
    await new Promise((resolve) => setTimeout(resolve, 100));
    each.disconnect();
    return Math.max(0, ...tasks);
  });
  check(name, longest <= LONG_TASK, longest ? `longest task ${longest} ms` : 'no long task');
}

/** A number of a million digits comes into a field, is refused, and goes. */
async function refuseMillion(page: Page): Promise<void> {
  await page.evaluate(() => document.querySelector<HTMLElement>('[aria-label="Base 16"]')!.focus());
  await page.keyboard.press('Control+a');
  const isRefused = () => page.getByRole('alert').first().waitFor();
  const entering = 'put a million digits into a field';
  await checkTasks(page, entering, () => page.keyboard.insertText('7'.repeat(1_000_000)));
  await checkTasks(page, 'refuse a million digits', () => page.keyboard.press('Enter').then(isRefused));
  await checkTasks(page, 'restore the field', () => page.keyboard.press('Escape'));
}

/** Scrolls the row of bytes from one end to the other in 90 frames. */
async function scroll(page: Page): Promise<void> {
  await page.evaluate(() => (document.querySelector('[data-scroller="sheet"]')!.scrollTop = 1e6));
  await page.locator('[role="group"][aria-label="Int 8"] [data-word]').first().waitFor();
  await checkTasks(page, 'scroll the row of bytes from end to end', () =>
    page.evaluate(async () => {
      const row = document.querySelector('[role="group"][aria-label="Int 8"] [data-scroller="row"]')!;
      const frame = () => new Promise((resolve) => requestAnimationFrame(resolve));
      for (let step = 0; step <= 90; step++) {
        row.scrollLeft = ((row.scrollWidth - row.clientWidth) * step) / 90;
        await frame();
      }
    }),
  );
  await page.evaluate(() => (document.querySelector('[data-scroller="sheet"]')!.scrollTop = 0));
}

async function heap(page: Page): Promise<void> {
  const session = await page.context().newCDPSession(page);
  const used = async () => {
    await session.send('HeapProfiler.collectGarbage');
    const { usedSize } = await session.send('Runtime.getHeapUsage');
    return usedSize;
  };
  const work = async (edits: number, switches: number) => {
    for (let round = 0; round < edits; round++) await toggle(page, round);
    for (let round = 0; round < switches; round++) await figures[2]!.app(page, round);
  };
  await work(LONGEST_HISTORY, 100);
  const before = await used();
  await work(1000, 100);
  const growth = (await used()) / before - 1;
  check(
    'heap with a full history after 1,000 edits and 100 switches more',
    growth <= LARGEST_GROWTH,
    `${(100 * growth).toFixed(1)}% growth`,
  );
}

function scriptSize(): void {
  const scripts = readdirSync(`${DIST}/assets`).filter((name) => name.endsWith('.js'));
  const bytes = scripts.reduce((sum, name) => sum + statSync(`${DIST}/assets/${name}`).size, 0);
  check('script size', bytes <= LARGEST_SCRIPT, `${bytes.toLocaleString('en')} bytes`);
}

const servers = [await servePage(DIST), await servePage(FLOOR)] as const;
const executablePath = execFileSync('sh', ['-c', 'command -v chromium'], { encoding: 'utf8' }).trim();
const browser = await chromium.launch({
  executablePath,
  args: [
    '--no-sandbox',
    '--disable-gpu',
    '--disable-quic',
    '--no-first-run',
    '--disable-background-networking',
    '--disable-component-update',
    '--disable-sync',
  ],
});
try {
  const context = await browser.newContext({ viewport: { width: 1280, height: 800 } });
  await context.addInitScript(instruments, documentText);
  const app = await context.newPage();
  await app.goto(servers[0].url);
  await app.locator('canvas').first().waitFor();
  const floor = await context.newPage();
  await floor.goto(servers[1].url);
  await floor.evaluate((value) => window.showSheet(1024, value), VALUES[0]!);
  for (const figure of figures) await compare(app, floor, figure);
  await app.bringToFront();
  await moveRangeEnd(app);
  await refuseMillion(app);
  await scroll(app);
  await heap(app);
  scriptSize();
} finally {
  await browser.close();
  await Promise.all(servers.map((server) => server.close()));
}
process.exitCode = failures.length > 0 ? 1 : 0;
