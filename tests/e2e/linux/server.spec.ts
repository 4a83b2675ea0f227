import { once } from 'node:events';
import { readFileSync } from 'node:fs';
import { createServer } from 'node:net';
import { networkInterfaces } from 'node:os';
import { join } from 'node:path';
import { treeOf } from '../../bench/processTree';
import { askForLongPaths, serverStories } from '../stories/server';
import { expect, test } from '../support/linux/fixtures';
import { noteAttack } from '../support/shared/attackTable';
import type { Desktop, DesktopWindow } from '../support/shared/desktop';
import { toolSources } from '../support/shared/paths';
import type { ProgramProcess } from '../support/shared/programProcess';
import { until } from '../support/shared/until';

const occupier = join(toolSources, 'occupied_ports.mjs');

/** What "localhost" can mean on this machine. */
const loopbackAddresses = () =>
  Object.values(networkInterfaces())
    .flatMap((addresses) => addresses ?? [])
    .map(({ address }) => address)
    .filter((address) => address === '127.0.0.1' || address === '::1');

serverStories(test);

// A path is matched by a regular expression, which may recurse once per character.
test('long paths are answered on small stacks as well', async ({ open, sandbox }) => {
  const program = await open([], { command: ['sh', '-c', 'ulimit -s 1024; exec "$@"', 'sh', sandbox.program] });
  expect(readFileSync(`/proc/${program.process.pid}/limits`, 'utf8')).toMatch(/Max stack size +1048576 /);
  await askForLongPaths(program);
  expect(await program.close()).toBe(0);
});

test('nobody else can listen at "localhost" with the port of the program', async ({ open }) => {
  const port = Number(new URL((await open()).url).port);
  for (const host of loopbackAddresses()) {
    const other = createServer();
    other.listen({ host, port });
    await expect(once(other, 'listening'), host).rejects.toThrow('EADDRINUSE');
    const sharing = createServer();
    sharing.listen({ host, port, reusePort: true });
    await expect(once(sharing, 'listening'), host).rejects.toThrow('EADDRINUSE');
  }
  noteAttack(
    'another program listens at the port',
    `${loopbackAddresses().join(' and ')}, plain and asking to share`,
    'refused by the system',
  );
});

// A twin is there where the system has IPv6: here in a network of its own, where the system has few ports to give and
// another program has some of them at "::1".
if (loopbackAddresses().includes('::1')) {
  const besidePortsInUse = (count: number, program: string) => [
    ...['unshare', '--map-root-user', '--net', process.execPath, occupier, String(count), program],
  ];
  /** The window of a program that another one started. */
  const windowBelow = async (desktop: Desktop, { pid }: ProgramProcess) => {
    const windows = () => treeOf(pid).flatMap((each) => desktop.windowsOf(each));
    await until('a window', () => windows().length > 0);
    return windows()[0] as DesktopWindow;
  };

  test('no page is shown where another program has each port at the other loopback address', async ({
    desktop,
    run,
    sandbox,
  }) => {
    const program = run([], { command: besidePortsInUse(12, sandbox.program) });
    desktop.close(await windowBelow(desktop, program));
    expect(await program.exit()).toBe(1);
    expect(program.stderr).toMatch(
      /^Another program listens at port 400\d\d of this computer, where it could pass for Tessary's own page: [^\n]+\n$/,
    );
    const log = readFileSync(sandbox.logFile, 'utf8');
    expect(log.match(/Bound to port/g)).toHaveLength(8);
    expect(log).not.toContain('[HTTP]');
    noteAttack('another program has each port at the other loopback address', '8 ports', 'a message, no page');
  });

  test('another port is taken where another program has some at the other loopback address', async ({
    desktop,
    run,
    sandbox,
  }) => {
    const program = run([], { command: besidePortsInUse(7, sandbox.program) });
    const window = await windowBelow(desktop, program);
    await until('the page', () => readFileSync(sandbox.logFile, 'utf8').includes('[HTTP] GET / -> 200'));
    const ports = [...readFileSync(sandbox.logFile, 'utf8').matchAll(/Bound to port (\d+)/g)].map(([, port]) => port);
    expect(new Set(ports).size).toBe(ports.length);
    expect(Number(ports.at(-1))).toBeGreaterThanOrEqual(40007);
    desktop.close(window);
    expect(await program.exit()).toBe(0);
    noteAttack(
      'another program has ports at the other loopback address',
      '7 of 12 ports',
      `port ${ports.length} of those tried is taken, and the page shown`,
    );
  });
}
