import { once } from 'node:events';
import { readFileSync } from 'node:fs';
import { createServer } from 'node:net';
import { networkInterfaces } from 'node:os';
import { join } from 'node:path';
import { askForLongPaths, serverStories } from '../stories/server';
import { expect, test } from '../support/linux/fixtures';
import { toolSources } from '../support/shared/paths';

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
  }
});

// A twin is there where the system has IPv6: here in a network of its own, where the system has few ports to give and another program has all of them at "::1".
if (loopbackAddresses().includes('::1')) {
  test('no page is shown where another program has the port at the other loopback address', async ({
    run,
    sandbox,
  }) => {
    const command = ['unshare', '--map-root-user', '--net', process.execPath, occupier, sandbox.program];
    const program = run([], { command });
    expect(await program.exit()).toBe(1);
    expect(program.stderr).toMatch(
      /^Another program listens at port 4000\d of this computer, where it could pass for Tessary's own page: [^\n]+\n$/,
    );
    expect(program.stdout).not.toContain('[HTTP]');
  });
}
