// How fast the program's server answers, and how evenly.
import { readdirSync } from 'node:fs';
import { join } from 'node:path';
import { type Load, putUnderLoad } from './load.ts';

const BROTLI = 'Accept-Encoding: br\r\n';

/** @param client - the built load client */
export async function measureServer(root: string, client: string, port: number): Promise<void> {
  const script = readdirSync(join(root, 'web', 'dist', 'assets')).find((name) => name.endsWith('.js'));
  const load = (kind: Omit<Load, 'milliseconds'>, milliseconds = 4000) =>
    putUnderLoad(client, port, { ...kind, milliseconds });

  console.log('\nThe server, asked by a client on the same machine for 4 s each, after a warm-up');
  console.log('| file | connections | requests/s | median | 99th percentile | bytes each |');
  console.log('| --- | --- | --- | --- | --- | --- |');
  for (const [what, kind] of [
    ['icon', { path: '/favicon.svg', connections: 64 }],
    ['index.html', { path: '/', connections: 64 }],
    ['index.html', { path: '/', connections: 4 }],
    ['index.html, Brotli', { path: '/', connections: 4, headers: BROTLI }],
    ['script', { path: `/assets/${script}`, connections: 4 }],
    ['script, Brotli', { path: `/assets/${script}`, connections: 4, headers: BROTLI }],
  ] as const) {
    await load(kind, 500);
    const { requestsPerSecond, median, p99, bytes } = await load(kind);
    console.log(
      `| ${what} | ${kind.connections} | ${requestsPerSecond.toFixed(0)} | ${median.toFixed(2)} ms | ` +
        `${p99.toFixed(2)} ms | ${bytes} |`,
    );
  }
  const { requests, longest, late } = await putUnderLoad(client, port, {
    path: '/',
    connections: 60,
    milliseconds: 0,
    bursts: 12,
  });
  console.log(
    `${requests} requests in 12 bursts of new connections: the longest took ${longest.toFixed(1)} ms, ` +
      `${late} took 100 ms or longer`,
  );
}
