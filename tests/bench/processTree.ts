// What a process and all that came from it take from the system.
import { readdirSync, readFileSync, readlinkSync } from 'node:fs';

/** A process and all that came from it, itself first. */
export function treeOf(pid: number): number[] {
  const children = new Map<number, number[]>();
  for (const each of readdirSync('/proc').map(Number).filter(Number.isInteger)) {
    const parent = parentOf(each);
    children.set(parent, [...(children.get(parent) ?? []), each]);
  }
  const tree = [pid];
  for (const each of tree) tree.push(...(children.get(each) ?? []));
  return tree;
}

/** In MB. Memory that several processes share is divided among them, also those of other programs. */
export function proportionalSize(pid: number): number {
  return sizeOf(pid, 'Pss');
}

/** In MB. Memory that is this process's alone. */
export function privateSize(pid: number): number {
  return sizeOf(pid, 'Private_Clean') + sizeOf(pid, 'Private_Dirty');
}

function sizeOf(pid: number, kind: string): number {
  const rollup = readFileSync(`/proc/${pid}/smaps_rollup`, 'utf8');
  return Number(new RegExp(`^${kind}:\\s+(\\d+) kB$`, 'm').exec(rollup)?.[1] ?? 0) / 1000;
}

/** Milliseconds of processor time that a process has used, to the hundredth of a second. */
export function processorTime(pid: number): number {
  const [user = NaN, system = NaN] = readFileSync(`/proc/${pid}/stat`, 'utf8')
    .replace(/^.*\)/s, '')
    .split(' ')
    .slice(12, 14)
    .map(Number);
  return (user + system) * 10;
}

/** The file name of the program that a process runs. */
export function programOf(pid: number): string {
  return readlinkSync(`/proc/${pid}/exe`).replace(/^.*\//, '');
}

/** How many files, sockets and pipes a process has open. */
export function openFiles(pid: number): number {
  return readdirSync(`/proc/${pid}/fd`).length;
}

export function threadsOf(pid: number): number {
  return readdirSync(`/proc/${pid}/task`).length;
}

function parentOf(pid: number): number {
  try {
    return Number(/^PPid:\s+(\d+)$/m.exec(readFileSync(`/proc/${pid}/status`, 'utf8'))?.[1] ?? -1);
  } catch {
    return -1; // it has ended
  }
}
