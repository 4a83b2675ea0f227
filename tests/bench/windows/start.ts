import { Agent, get } from 'node:http';
import { until } from '../../e2e/support/shared/until';
import { test } from '../../e2e/support/windows/fixtures';
import type { WindowsProgram } from '../../e2e/support/windows/windowsProgram';

interface Loading {
  /** Milliseconds from the start of the process until the page and all that it needs is loaded. */
  loaded: number;
  /** The script's address, without the server. */
  script: string;
  /** Milliseconds from Chromium's request for the script to the first byte of the answer, and to the last. */
  firstByte: number;
  lastByte: number;
  /** Bytes on the wire, and of the script itself. */
  encoded: number;
  decoded: number;
}

const rounds = Number(process.env.TESSARY_BENCH_ROUNDS ?? 7);

test('start', async ({ open }) => {
  const loadings: Loading[] = [];
  const direct: { brotli: number[]; plain: number[] } = { brotli: [], plain: [] };
  for (let round = -1; round < rounds; round++) {
    const start = Date.now();
    const program = await open();
    const loading = await loadingOf(program, start);
    const brotli = await timesOf(program.url + loading.script, 'gzip, deflate, br, zstd');
    const plain = await timesOf(program.url + loading.script, 'identity');
    await program.close();
    if (round < 0) continue; // fills caches
    loadings.push(loading);
    direct.brotli.push(...brotli);
    direct.plain.push(...plain);
  }
  const [{ encoded, decoded }] = loadings as [Loading];
  const lines = [
    `The Windows executable under wine, medians of ${rounds} starts`,
    line(
      'start to loaded page',
      loadings.map(({ loaded }) => loaded),
    ),
    line(
      'script, request to first byte (the server compresses it)',
      loadings.map(({ firstByte }) => firstByte),
    ),
    line(
      'script, request to last byte',
      loadings.map(({ lastByte }) => lastByte),
    ),
    `  script: ${encoded} bytes on the wire of ${decoded}`,
    `The same script asked for again by another client, medians of ${direct.brotli.length} requests`,
    line('with Brotli, request to last byte', direct.brotli),
    line('as it is, request to last byte', direct.plain),
  ];
  console.log(lines.join('\n'));
});

function line(what: string, figures: number[]): string {
  const sorted = figures.toSorted((a, b) => a - b);
  const [median, least, most] = [sorted[Math.floor(sorted.length / 2)], sorted[0], sorted.at(-1)];
  return `  ${what}: ${median?.toFixed(1)} ms (${least?.toFixed(1)} to ${most?.toFixed(1)})`;
}

/** What the browser itself noted of the page's loading. */
function loadingOf(program: WindowsProgram, start: number): Promise<Loading> {
  return until('the loading to be over', () =>
    program.page.evaluate((begin) => {
      const [page] = performance.getEntriesByType('navigation') as PerformanceNavigationTiming[];
      const resources = performance.getEntriesByType('resource') as PerformanceResourceTiming[];
      const script = resources.find(({ name }) => name.endsWith('.js'));
      if (!script || !page || page.loadEventEnd === 0) return false;
      return {
        loaded: performance.timeOrigin + page.loadEventEnd - begin,
        script: new URL(script.name).pathname,
        firstByte: script.responseStart - script.requestStart,
        lastByte: script.responseEnd - script.requestStart,
        encoded: script.encodedBodySize,
        decoded: script.decodedBodySize,
      };
    }, start),
  );
}

/** Milliseconds of each of some requests on one kept connection, the first left out. */
async function timesOf(url: string, encoding: string): Promise<number[]> {
  const agent = new Agent({ keepAlive: true, maxSockets: 1 });
  const times: number[] = [];
  for (let request = 0; request < 6; request++) {
    const start = performance.now();
    await new Promise<void>((resolve, reject) => {
      const asked = get(url, { agent, headers: { 'Accept-Encoding': encoding } }, (response) => {
        response.resume().on('end', resolve).on('error', reject);
      });
      asked.on('error', reject);
    });
    if (request > 0) times.push(performance.now() - start);
  }
  agent.destroy();
  return times;
}
