import { mkdirSync, readdirSync, readFileSync, statSync } from 'node:fs';
import { dirname } from 'node:path';
import { expect, test } from '../e2e/support/linux/fixtures';
import { barShows, enterValue, savedValues } from '../e2e/support/linux/nativeDocument';
import type { Program } from '../e2e/support/linux/program';
import { documentText } from '../e2e/support/shared/documents';
import { until } from '../e2e/support/shared/until';

/** A command for a view of the system with disks of its own: first sets them up with a shell script, then runs a program. */
const withOwnDisks = (setUp: string, program: string) => [
  ...['unshare', '--user', '--map-current-user', '--keep-caps', '--mount'],
  ...['sh', '-c', `set -e; ${setUp}; exec "$0" "$@"`, program],
];

const fill = (folder: string) => `dd if=/dev/zero of='${folder}/filling' bs=1k 2>/dev/null || true`;

async function editAndSave(program: Program, file: string, value = '6') {
  await enterValue(program, value);
  await barShows(program, 'mine.words.tessary*');
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  expect(savedValues(file)).toEqual([`0x${value}`]);
}

test('without room for the log the program runs, and what fits of the log is there', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const folder = dirname(sandbox.program);
  const kept = `${sandbox.folder}/kept`;
  const room = Math.ceil(statSync(sandbox.program).size / 1024) + 64;
  const setUp =
    `ln '${sandbox.program}' '${kept}'; mount -t tmpfs -o size=${room}k none '${folder}'; ` +
    `cp '${kept}' '${folder}/tessary'; ${fill(folder)}`;
  const program = await open([file], { command: withOwnDisks(setUp, sandbox.program) });
  await editAndSave(program, file);
  const inside = `/proc/${program.process.pid}/root${folder}`;
  expect(statSync(`${inside}/filling`).size).toBeGreaterThan(0);
  expect(readFileSync(`${inside}/debug.log`, 'utf8')).toBe('');
  expect(await program.close()).toBe(0);
});

test('without room for copies of unsaved work a document is edited and saved', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const state = `${sandbox.home}/state`;
  mkdirSync(state);
  const setUp = `mount -t tmpfs -o size=64k none '${state}'; mkdir -m 700 '${state}/tessary'; ${fill(state)}`;
  const program = await open([file], { command: withOwnDisks(setUp, sandbox.program), env: { XDG_STATE_HOME: state } });
  const copies = `/proc/${program.process.pid}/root${state}/tessary`;
  await enterValue(program, '6');
  // Two of the host's questions, ten seconds apart: the second one asks again for what could not be copied.
  const begin = performance.now();
  await until('the time for two copies', () => performance.now() - begin > 25_000, 40_000);
  expect(statSync(`${copies}/../filling`).size).toBeGreaterThan(0);
  expect(readdirSync(copies).filter((name) => name.includes('unsaved'))).toEqual([]);
  await editAndSave(program, file, '7');
  expect(await program.close()).toBe(0);
});

test('without room in the home folder a document is edited and saved', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const setUp = `mount -t tmpfs -o size=64k none '${sandbox.home}'; ${fill(sandbox.home)}`;
  const runtime = `${sandbox.folder}/runtime`; // not in the home folder on desktops either
  mkdirSync(runtime, { mode: 0o700 });
  const command = withOwnDisks(setUp, sandbox.program);
  const program = await open([file], { command, env: { XDG_RUNTIME_DIR: runtime } });
  await editAndSave(program, file);
  expect(statSync(`/proc/${program.process.pid}/root${sandbox.home}/filling`).size).toBeGreaterThan(0);
  expect(await program.close()).toBe(0);
});
