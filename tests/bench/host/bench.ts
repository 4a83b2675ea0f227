import { copyFileSync, mkdtempSync, readdirSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { putUnderLoad } from './load.ts';
import { type Sample, Served, Session } from './session.ts';

const [root = '.', roundsText = '10'] = process.argv.slice(2);
const rounds = Number(roundsText);
const built = join(root, 'build', 'linux', 'tessary');
const tools = join(root, 'build', 'bench', 'host');

const folder = mkdtempSync(join(tmpdir(), 'tessary-bench-'));
const serving = await Session.start(join(folder, 'serving'));
const showing = await Session.start(join(folder, 'showing'));
try {
  const served = await Served.start(serving, built);
  await compareWindows(served);
  await measureServer(served);
  await served.stop();
} finally {
  await showing.stop();
  await serving.stop();
  rmSync(folder, { recursive: true, force: true });
}

/** Both show the same page; the program from its own server, the other from that of a program running beside. */
async function compareWindows(served: Served) {
  const program = join(showing.folder, 'tessary');
  copyFileSync(built, program);
  const commands = { tessary: [program], floor: [join(tools, 'floor'), `http://localhost:${served.port}/`] };
  const samples: Record<keyof typeof commands, Sample[]> = { tessary: [], floor: [] };
  for (let round = -1; round < rounds; round++) {
    // The first round fills caches and does not count; then each goes first in every other round.
    const order = round % 2 === 0 ? (['tessary', 'floor'] as const) : (['floor', 'tessary'] as const);
    for (const name of order) {
      const sample = await showing.measure(join(tools, 'first_paint'), commands[name]);
      if (round >= 0) samples[name].push(sample);
    }
  }
  console.log(`The window against the least that shows the same page, medians of ${rounds} interleaved rounds`);
  compare('start to first paint', 'ms', samples, (sample) => sample.paint);
  compare('memory of all processes (PSS)', 'MB', samples, (sample) => sample.memory);
}

function compare(what: string, unit: string, samples: Record<string, Sample[]>, value: (sample: Sample) => number) {
  const figures = (name: string) => (samples[name] ?? []).map(value).sort((a, b) => a - b);
  const [ours, floors] = [figures('tessary'), figures('floor')];
  const summary = (all: number[]) =>
    `${median(all).toFixed(1)} ${unit} (${all.at(0)?.toFixed(1)} to ${all.at(-1)?.toFixed(1)})`;
  console.log(
    `  ${what}: ${summary(ours)}, least ${summary(floors)}, ratio ${(median(ours) / median(floors)).toFixed(3)}`,
  );
}

function median(sorted: number[]): number {
  const middle = sorted.length / 2;
  return ((sorted[Math.ceil(middle) - 1] ?? NaN) + (sorted[Math.floor(middle)] ?? NaN)) / 2;
}

async function measureServer({ port }: Served) {
  const script = readdirSync(join(root, 'web', 'dist', 'assets')).find((name) => name.endsWith('.js'));
  const brotli = 'Accept-Encoding: br\r\n';
  console.log('The server, with 4 kept connections of a client on the same machine, 4 s each');
  for (const [what, path, headers] of [
    ['index.html', '/', ''],
    ['index.html, Brotli', '/', brotli],
    ['script', `/assets/${script}`, ''],
    ['script, Brotli', `/assets/${script}`, brotli],
  ] as const) {
    const load = { path, headers, connections: 4, milliseconds: 4000 };
    await putUnderLoad(port, { ...load, milliseconds: 500 });
    const { requestsPerSecond, median: middle, p99, bytes } = await putUnderLoad(port, load);
    console.log(
      `  ${what}: ${requestsPerSecond.toFixed(0)} requests/s, latency median ${middle.toFixed(2)} ms, ` +
        `99th percentile ${p99.toFixed(2)} ms, ${bytes} bytes each`,
    );
  }
}
