import { execFileSync } from 'node:child_process';
import { chmodSync, existsSync, readdirSync, readFileSync } from 'node:fs';
import { dirname } from 'node:path';
import { treeOf } from '../../bench/processTree';
import { expect, test } from '../support/linux/fixtures';
import { asOrdinaryUser } from '../support/linux/ordinaryUser';
import { noteAttack } from '../support/shared/attackTable';
import { documentText } from '../support/shared/documents';
import type { ProgramProcess } from '../support/shared/programProcess';
import { until } from '../support/shared/until';

/** Whether any process of a group is still there. */
function isGroupAlive(leader: number): boolean {
  try {
    process.kill(-leader, 0);
    return true;
  } catch {
    return false;
  }
}

test('a start that is killed leaves the document and the next start alone', async ({ run, open, sandbox, desktop }) => {
  const text = documentText({ int: '0x5' });
  const file = sandbox.write('mine.words.tessary', text);
  const log = () => (existsSync(sandbox.logFile) ? readFileSync(sandbox.logFile, 'utf8') : '');
  let logged = 0;
  const moments: Record<string, (started: ProgramProcess) => boolean> = {
    'at once': () => true,
    'with its log': () => log().length > logged,
    'with its server': () => log().slice(logged).includes('Server URL'),
    'with its page process': ({ pid }) => treeOf(pid).length > 1,
    'with a window': ({ pid }) => desktop.windowsOf(pid).length > 0,
    'with a page': () => log().slice(logged).includes('[HTTP]'),
  };
  for (const [moment, hasCome] of Object.entries(moments)) {
    logged = log().length;
    const started = run([file]);
    await until(`the start to be ${moment}`, () => hasCome(started));
    process.kill(started.pid, 'SIGKILL');
    expect(await started.exit()).toBe('SIGKILL');
    await until('its other processes to go', () => !isGroupAlive(started.pid));
    expect(readFileSync(file, 'utf8')).toBe(text);
  }
  expect(readdirSync(sandbox.documents)).toEqual(['mine.words.tessary']);
  const program = await open([file]);
  await program.shows('Number A');
  expect(await program.close()).toBe(0);
  noteAttack(
    'kill -9 while the program starts',
    `${Object.keys(moments).length} moments`,
    'no process is left, the document is untouched, the next start shows it',
  );
});

test('the program runs without a log in a folder that it may not write to', async ({ open, sandbox }) => {
  const folder = dirname(sandbox.program);
  chmodSync(folder, 0o555);
  const program = await open([], { command: asOrdinaryUser(sandbox.program) });
  await program.shows('Open Words Tool');
  expect(readdirSync(folder)).toEqual(['tessary']);
  expect(await program.close()).toBe(0);
  chmodSync(folder, 0o755);
});

test('the program runs without a log where a pipe has its name', async ({ open, sandbox }) => {
  execFileSync('mkfifo', [sandbox.logFile]);
  const program = await open();
  await program.shows('Open Words Tool');
  expect(await program.close()).toBe(0);
  noteAttack('a pipe as log', '1', 'the program runs without a log');
});

test('a limit on the size of files is a save that fails, and the program goes on', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', 'old');
  const program = await open();
  await program.shows('Open Words Tool');
  execFileSync('prlimit', [`--pid=${program.process.pid}`, '--fsize=200000']);
  const write = (length: number) =>
    program.page.evaluate(
      (path, count) => {
        const bound = window as unknown as { writeFile(path: string, content: string): Promise<{ success: boolean }> };
        return bound.writeFile(path, 'x'.repeat(count));
      },
      file,
      length,
    );
  expect(await write(300_000)).toEqual({ success: false, error: 'file-write-failed' });
  expect(readFileSync(file, 'utf8')).toBe('old');
  expect(await write(100_000)).toEqual({ success: true });
  expect(await program.close()).toBe(0);
  noteAttack('a limit on the size of files', '1', '"file-write-failed", the document as it was, the program goes on');
});
