// How fast the program's server answers, and how evenly, beside the HTTP library alone.
import { readdirSync } from 'node:fs';
import { join } from 'node:path';
import { processorTime } from '../processTree.ts';
import { type Load, putUnderLoad } from './load.ts';
import { Served, type Session } from './session.ts';

const BROTLI = 'Accept-Encoding: br\r\n';
const PAGE = { path: '/', connections: 64 };

type Kind = Omit<Load, 'milliseconds'>;

/** @param tools - the folder of the built load client */
export async function measureServer(root: string, tools: string, served: Served): Promise<void> {
  const script = readdirSync(join(root, 'web', 'dist', 'assets')).find((name) => name.endsWith('.js'));
  console.log('\nThe server, asked by a client on the same machine for 4 s each, after a warm-up.');
  console.log('Processor time is that of one request, of the server and of the client.');
  console.log('| file | connections | requests/s | median | 99th percentile | server | client | bytes each |');
  console.log('| --- | --- | --- | --- | --- | --- | --- | --- |');
  const kinds: [string, Kind][] = [
    ['icon', { path: '/favicon.svg', connections: 64 }],
    ['index.html', PAGE],
    ['index.html', { path: '/', connections: 4 }],
    ['index.html, Brotli', { path: '/', connections: 4, headers: BROTLI }],
    ['script', { path: `/assets/${script}`, connections: 4 }],
    ['script, Brotli', { path: `/assets/${script}`, connections: 4, headers: BROTLI }],
  ];
  for (const [what, kind] of kinds) await printRow(tools, served, what, kind);
  const { requests, longest, late } = await putUnderLoad(join(tools, 'load'), served.port, {
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

/** What is possible on this machine: two bytes as answer to each request, and no log. */
export async function measureBareLibrary(tools: string, session: Session): Promise<void> {
  console.log('\nThe HTTP library alone, with its own threads or one for each connection');
  for (const [what, options] of [
    ['bare library', []],
    ['bare library, 64 threads', ['64']],
  ] as const) {
    const bare = await Served.speaking(session, join(tools, 'bare_server'), [...options]);
    await printRow(tools, bare, what, PAGE);
    await bare.stop();
  }
}

async function printRow(tools: string, served: Served, what: string, kind: Kind) {
  const client = join(tools, 'load');
  await putUnderLoad(client, served.port, { ...kind, milliseconds: 500 });
  const before = processorTime(served.pid);
  const result = await putUnderLoad(client, served.port, { ...kind, milliseconds: 4000 });
  const serverTime = ((processorTime(served.pid) - before) / result.requests) * 1e3;
  const { requestsPerSecond, median, p99, clientTime, bytes } = result;
  console.log(
    `| ${what} | ${kind.connections} | ${requestsPerSecond.toFixed(0)} | ${median.toFixed(2)} ms | ` +
      `${p99.toFixed(2)} ms | ${serverTime.toFixed(1)} µs | ${clientTime.toFixed(1)} µs | ${bytes} |`,
  );
}
