// Runs a command in a network with twelve free ports, the first COUNT of which another program listens at, at the IPv6
// loopback address only: node occupied_ports.mjs COUNT COMMAND [ARGUMENT...]. For a network namespace of its own, as its
// root.
import { execFileSync, spawnSync } from 'node:child_process';
import { once } from 'node:events';
import { writeFileSync } from 'node:fs';
import { createServer } from 'node:net';

const [count, command, ...rest] = process.argv.slice(2);
const ports = Array.from({ length: 12 }, (_, at) => 40000 + at);

execFileSync('ip', ['link', 'set', 'lo', 'up']);
writeFileSync('/proc/sys/net/ipv4/ip_local_port_range', `${ports.at(0)} ${ports.at(-1)}`);
for (const port of ports.slice(0, Number(count))) {
  const other = createServer();
  other.listen({ host: '::1', port, ipv6Only: true });
  await once(other, 'listening');
}
process.exit(spawnSync(command, rest, { stdio: 'inherit', timeout: 30_000 }).status ?? 70);
