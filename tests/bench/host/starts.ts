// How the program comes up and rests, beside the least window that shows a page.
import { copyFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { barePage } from './barePage.ts';
import type { Sample, Session } from './session.ts';

/** Milliseconds in which a window that nobody touches is watched. */
const IDLE_FOR = 10_000;

interface Row {
  name: string;
  command: string[];
  /** Where nothing is asked about its rest. */
  idleFor?: number;
  samples: Sample[];
}

/** @param tools - the folder of the built tools */
export async function compareStarts(root: string, tools: string, session: Session, rounds: number): Promise<void> {
  const rows = rowsIn(root, tools, session);
  const watcher = join(tools, 'watch_start');
  // What was never started has to come from the disk: these starts do not count.
  for (const { command } of rows) await session.measure(watcher, 0, command);
  for (let round = 0; round < rounds; round++) {
    for (const { command, idleFor = IDLE_FOR, samples } of shuffled(rows)) {
      samples.push(await session.measure(watcher, idleFor, command));
    }
  }
  print(rows, rounds);
}

/** The bare window first, then the program without and with the sample document. */
export function rowsIn(root: string, tools: string, session: Session): Row[] {
  const program = join(session.folder, 'tessary');
  copyFileSync(join(root, 'build', 'linux', 'tessary'), program);
  const put = (name: string, text: string) => {
    writeFileSync(join(session.folder, name), text);
    return join(session.folder, name);
  };
  const row = (name: string, command: string[], idleFor?: number): Row => ({ name, command, idleFor, samples: [] });
  const document = (bits: number) => put(`${bits}.words.tessary`, documentOf(bits));
  return [
    row('bare window', [join(tools, 'floor'), `file://${put('bare.html', barePage())}`]),
    row('Tessary, start page', [program]),
    row('Tessary with the sample document', [program, join(root, 'sample.words.tessary')]),
    row('Tessary, 64 bits', [program, document(64)], 0),
    row('Tessary, 1024 bits', [program, document(1024)], 0),
  ];
}

function documentOf(bits: number): string {
  const sheet = { id: 'one', displayName: 'One', int: `0x${'a5'.repeat(bits / 8)}`, intResolution: bits };
  return JSON.stringify({ tool: 'words', version: 1, sheets: [{ ...sheet, numberDefinitions: [] }] });
}

function shuffled<T>(all: readonly T[]): T[] {
  const rest = [...all];
  return all.map(() => rest.splice(Math.floor(Math.random() * rest.length), 1)[0] as T);
}

function print(rows: Row[], rounds: number): void {
  const [bare, , , narrow, wide] = rows as [Row, Row, Row, Row, Row];
  console.log(`Starts, medians of ${rounds} in shuffled order; the bare window's figures are 1.00`);
  console.log('| | window | readable | PSS | processor time | idle processor time in 10 s |');
  console.log('| --- | --- | --- | --- | --- | --- |');
  for (const row of rows.slice(0, 3)) {
    const cells = [
      cell(row, bare, 'window', seconds),
      cell(row, bare, 'readable', seconds),
      cell(row, bare, 'memory', mebibytes),
      cell(row, bare, 'processor', seconds),
      `${(medianOf(row, 'idle') / 1000).toFixed(4)} s`,
    ];
    console.log(`| ${row.name} | ${cells.join(' | ')} |`);
  }
  const ratio = medianOf(wide, 'readable') / medianOf(narrow, 'readable');
  console.log(
    `A 1024-bit document is readable after ${seconds(medianOf(wide, 'readable'))}, ${ratio.toFixed(2)} times the ` +
      `64-bit one's ${seconds(medianOf(narrow, 'readable'))}.`,
  );
}

const seconds = (milliseconds: number) => `${(milliseconds / 1000).toFixed(2)} s`;
const mebibytes = (megabytes: number) => `${(megabytes / 1.048576).toFixed(0)} MiB`;

function cell(row: Row, bare: Row, key: keyof Sample, unit: (value: number) => string): string {
  return `${(medianOf(row, key) / medianOf(bare, key)).toFixed(2)} (${unit(medianOf(row, key))})`;
}

function medianOf({ samples }: Row, key: keyof Sample): number {
  const sorted = samples.map((sample) => sample[key]).sort((a, b) => a - b);
  const middle = sorted.length / 2;
  return ((sorted[Math.ceil(middle) - 1] ?? NaN) + (sorted[Math.floor(middle)] ?? NaN)) / 2;
}
