import { expect, test } from '../support/linux/fixtures';
import type { Program } from '../support/linux/program';
import { untilReloaded } from '../support/linux/reload';
import { ask, sendAndFinish, sendAndLeave, SlowConnections } from '../support/shared/rawConnection';

const portOf = (program: Program) => Number(new URL(program.url).port);

/** Loads the page anew, waits until it can be used and gives the milliseconds that it took. */
async function reload(program: Program): Promise<number> {
  const begin = performance.now();
  const ask = () => program.page.evaluate(() => void setTimeout(() => location.reload())).catch(() => {});
  await untilReloaded(program, ask);
  await program.shows('Open Words Tool');
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
});

test('the page loads while 200 slow connections are held open', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const slow = await SlowConnections.open(portOf(program), 200, 500);
  const took = await reload(program);
  expect(slow.open).toBe(200);
  test.info().annotations.push({ type: 'loaded in', description: `${took.toFixed(0)} ms` });
  slow.close();
  expect(await program.close()).toBe(0);
});
