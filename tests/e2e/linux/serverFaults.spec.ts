import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { threadsOf } from '../../bench/processTree';
import { expect, test } from '../support/linux/fixtures';
import { executable } from '../support/linux/paths';
import type { Program } from '../support/linux/program';
import { untilReloaded } from '../support/linux/reload';
import { noteAttack } from '../support/shared/attackTable';
import { ask, sendAndFinish, sendAndLeave, SlowConnections } from '../support/shared/rawConnection';

/** In MB, of the process's own and shared memory. */
const peakMemory = (pid: number) =>
  Number(/^VmHWM:\s+(\d+) kB$/m.exec(readFileSync(`/proc/${pid}/status`, 'utf8'))?.[1]) / 1000;

const portOf = (program: Program) => Number(new URL(program.url).port);

/** Loads the page anew, waits until it can be used and gives the milliseconds that it took. */
async function reload(program: Program, patience?: number): Promise<number> {
  const begin = performance.now();
  const ask = () => program.page.evaluate(() => void setTimeout(() => location.reload())).catch(() => {});
  await untilReloaded(program, ask);
  await program.shows('Open Words Tool', patience);
  return performance.now() - begin;
}

const malformed = [
  'GET\r\n\r\n',
  'GET /\r\n\r\n',
  'no request at all\r\n\r\n',
  'GET / HTTP/9.9\r\n\r\n',
  'GET / HTTP/1.1\r\nno colon\r\n\r\n',
  'GET / HTTP/1.1\r\nHost: a\r\nContent-Length: -1\r\n\r\n',
  'POST / HTTP/1.1\r\nHost: a\r\nContent-Length: 99999999999999999999\r\n\r\nx',
  'POST / HTTP/1.1\r\nHost: a\r\nTransfer-Encoding: chunked\r\n\r\nZZ\r\n',
  'GET /%zz%00%ff HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n',
  `GET /${'a'.repeat(9000)} HTTP/1.1\r\nHost: a\r\n\r\n`,
  `GET / HTTP/1.1\r\n${'X-Many: a\r\n'.repeat(300)}\r\n`,
  Uint8Array.from({ length: 256 }, (_, byte) => byte),
];
const wellFormed = 'GET /favicon.svg HTTP/1.1\r\nHost: localhost\r\nConnection: close\r\n\r\n';
const cutOff = [
  '',
  'G',
  'GET /fav',
  'GET /favicon.svg HTTP/1.1\r\nHost: loc',
  'POST / HTTP/1.1\r\nContent-Length: 9\r\n\r\nabc',
];

const oneOf = <T>(all: readonly T[], at: number) => all[at % all.length] as T;

test('5,000 requests are answered among 5,000 that are malformed or cut off', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const port = portOf(program);
  const right = await ask(port, wellFormed);
  expect(right).toMatch(/^HTTP\/1\.1 200 OK\r\n[^]*<svg/);

  let [answered, next] = [0, 0];
  const send = async (at: number) => {
    if (at % 4 === 1) return sendAndFinish(port, oneOf(malformed, at >> 2));
    if (at % 4 === 3) return sendAndLeave(port, oneOf(cutOff, at >> 2));
    const answer = await ask(port, wellFormed);
    if (answer === right) answered++;
  };
  const work = async () => {
    while (next < 10_000) await send(next++);
  };
  await Promise.all([work(), work(), work(), work()]);
  expect(answered).toBe(5000);

  await reload(program);
  expect(await program.close()).toBe(0);
  noteAttack('malformed and cut-off requests', '5,000 among 5,000 good ones', `${answered} good ones answered in full`);
});

test('the page loads while 200 slow connections are held open', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const slow = await SlowConnections.open(portOf(program), 200, 500);
  const took = await reload(program);
  expect(slow.open).toBe(200);
  slow.close();
  expect(await program.close()).toBe(0);
  noteAttack('connections that send a byte each half second', '200', `the page loaded in ${took.toFixed(0)} ms`);
});

test('the page loads and a document is saved while 2,000 connections drip', async ({ open, sandbox }) => {
  // No more files than a program gets by default, and no way to get more.
  const program = await open([], { command: ['prlimit', '--nofile=1024:1024', sandbox.program] });
  await program.shows('Open Words Tool');
  const slow = await SlowConnections.open(portOf(program), 2000, 500);
  const took = await reload(program);
  const file = `${sandbox.documents}/mine.words.tessary`;
  expect(await program.call('writeFile', file, 'text')).toEqual({ success: true });
  expect(readFileSync(file, 'utf8')).toBe('text');
  const held = slow.open;
  slow.close();
  expect(await program.close()).toBe(0);
  noteAttack(
    'connections that send a byte each half second',
    '2,000, with 1,024 files allowed',
    `${held} held; the page loaded in ${took.toFixed(0)} ms, a document was saved`,
  );
});

test('the program goes on where no more threads can be made', async ({ open }) => {
  test.setTimeout(200_000);
  test.skip(/\/(sanitize|thread)\//.test(executable), 'sanitizers need more room than is left');
  const program = await open();
  await program.shows('Open Words Tool');
  const { pid } = program.process;
  const size = Number(/^VmSize:\s+(\d+) kB$/m.exec(readFileSync(`/proc/${pid}/status`, 'utf8'))?.[1]);
  // Room for three more stacks.
  execFileSync('prlimit', [`--pid=${pid}`, `--as=${(size + 50_000) * 1024}`]);
  const threads = threadsOf(pid);
  const slow = await SlowConnections.open(portOf(program), 300, 500);
  const more = threadsOf(pid) - threads;
  expect(more).toBeLessThan(8);
  await reload(program, 150_000); // 44 s on a quiet machine
  slow.close();
  expect(await program.close()).toBe(0);
  noteAttack(
    'no more threads',
    '300 slow connections, room for 3 more stacks',
    `${more} more threads; the page loaded, the program ended as usual`,
  );
});

test('closing does not wait for clients that send slowly', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const slow = await SlowConnections.open(portOf(program), 100, 500);
  expect(slow.open).toBe(100);
  const begin = performance.now();
  expect(await program.close()).toBe(0);
  const took = performance.now() - begin;
  expect(program.log()).toContain('[HTTP] GET / -> 200');
  slow.close();
  noteAttack(
    'clients that never end',
    '100 while the window is closed',
    `ended in ${(took / 1000).toFixed(2)} s, code 0, log whole`,
  );
});

test('large bodies are refused before they fill the memory', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const before = peakMemory(program.process.pid);
  const body = 'x'.repeat(99_000_000);
  const send = () =>
    ask(portOf(program), `POST / HTTP/1.1\r\nHost: localhost\r\nContent-Length: ${body.length}\r\n\r\n${body}`);
  await Promise.allSettled(Array.from({ length: 8 }, send));
  const grown = peakMemory(program.process.pid) - before;
  expect(grown).toBeLessThan(50);
  await reload(program);
  expect(await program.close()).toBe(0);
  noteAttack('bodies of 99 MB', '8 at once', `refused; the program's memory grew by ${grown.toFixed(0)} MB`);
});
