// Runs a command in a network whose few free ports are all listened at by another program, at the IPv6 loopback
// address only: node occupied_ports.mjs COMMAND [ARGUMENT...]. For a network namespace of its own, as its root.
import { execFileSync, spawnSync } from 'node:child_process';
import { once } from 'node:events';
import { writeFileSync } from 'node:fs';
import { createServer } from 'node:net';

const ports = [40000, 40001, 40002, 40003];

execFileSync('ip', ['link', 'set', 'lo', 'up']);
writeFileSync('/proc/sys/net/ipv4/ip_local_port_range', `${ports.at(0)} ${ports.at(-1)}`);
for (const port of ports) {
  const other = createServer();
  other.listen({ host: '::1', port, ipv6Only: true });
  await once(other, 'listening');
}
const [command, ...rest] = process.argv.slice(2);
process.exit(spawnSync(command, rest, { stdio: 'inherit', timeout: 30_000 }).status ?? 70);
