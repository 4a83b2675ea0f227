import { readdirSync, readFileSync } from 'node:fs';
import type { Program } from './program';

/** The process of the web engine that shows the program's page. */
export function pageProcess(program: Program): number {
  const found = readdirSync('/proc').find((entry) => {
    if (!/^\d+$/.test(entry)) return false;
    const [, name = '', parent = ''] = /\((.*)\) \S (\d+) /.exec(statOf(entry)) ?? [];
    return Number(parent) === program.process.pid && name.startsWith('WebKitWebProces');
  });
  if (found === undefined) throw new Error('The program has no process for its page');
  return Number(found);
}

function statOf(pid: string): string {
  try {
    return readFileSync(`/proc/${pid}/stat`, 'utf8');
  } catch {
    return ''; // it has ended meanwhile
  }
}
