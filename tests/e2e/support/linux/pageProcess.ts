import { readdirSync, readFileSync } from 'node:fs';
import { loadedPage } from '../shared/runningProgram';
import { until } from '../shared/until';
import type { Program } from './program';

/** The process of the web engine that shows the program's page. */
export function pageProcess(program: Program): number {
  const found = findPageProcess(program);
  if (found === undefined) throw new Error('The program has no process for its page');
  return found;
}

/** How often the page's script was asked for. */
const pageRequests = (program: Program) => program.log().split('.js -> 200').length;

function findPageProcess(program: Program): number | undefined {
  const found = readdirSync('/proc').find((entry) => {
    if (!/^\d+$/.test(entry)) return false;
    const [, name = '', parent = ''] = /\((.*)\) \S (\d+) /.exec(statOf(entry)) ?? [];
    return Number(parent) === program.process.pid && name.startsWith('WebKitWebProces');
  });
  return found === undefined ? undefined : Number(found);
}

/** Kills the process that shows the page, and waits until another one shows it. */
export async function killPage(program: Program) {
  await killPageProcess(program);
  await program.page.reconnect();
  await until('the page', () => loadedPage(program.page));
}

/** Kills the process that shows the page, and waits until another one has asked for the page. */
export async function killPageProcess(program: Program) {
  const before = pageProcess(program);
  const requests = pageRequests(program);
  process.kill(before, 'SIGKILL');
  await until('a request for the page', () => pageRequests(program) > requests);
  await until('another process for the page', () => {
    const now = findPageProcess(program);
    return now !== undefined && now !== before;
  });
}

function statOf(pid: string): string {
  try {
    return readFileSync(`/proc/${pid}/stat`, 'utf8');
  } catch {
    return ''; // it has ended meanwhile
  }
}
