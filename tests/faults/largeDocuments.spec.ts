import { closeSync, openSync, readdirSync, statSync, writeSync } from 'node:fs';
import { proportionalSize, treeOf } from '../bench/processTree';
import { expect, type ProgramSandbox, test } from '../e2e/support/linux/fixtures';
import type { Program } from '../e2e/support/linux/program';
import { sheet } from '../e2e/support/shared/documents';
import { until } from '../e2e/support/shared/until';

const SIZE = 200e6;
const NAME = 'large.words.tessary';
const LONG = 600_000;
const PIECE = 1e6;

const begin = '{"tool":"words","version":1,"sheets":[';
const padded = (piece: string) => ({ piece, count: Math.ceil(SIZE / piece.length) });

/** The memory that all processes took at most, looked at every now and then. In MB. */
class Peak {
  most = 0;
  readonly #looking: NodeJS.Timeout;

  constructor(pid: () => number | undefined) {
    this.#looking = setInterval(() => {
      const leader = pid();
      if (leader !== undefined) this.most = Math.max(this.most, memoryOf(leader));
    }, 500);
  }

  stop() {
    clearInterval(this.#looking);
  }
}

function memoryOf(leader: number): number {
  try {
    return treeOf(leader).reduce((sum, pid) => sum + proportionalSize(pid), 0);
  } catch {
    return 0; // one of them ended meanwhile
  }
}

function writeLarge(
  sandbox: ProgramSandbox,
  head: string,
  { piece, count }: { piece: string; count: number },
  tail: string,
): string {
  const path = sandbox.write(NAME);
  const file = openSync(path, 'w');
  writeSync(file, head);
  for (let written = 0; written < count; written++) writeSync(file, piece);
  writeSync(file, tail);
  closeSync(file);
  return path;
}

const widest = JSON.stringify(sheet({ int: `0x${'f'.repeat(256)}`, intResolution: 1024 }));
const thousandSheets = `${`${widest},`.repeat(1000)}\n`;

const [beforeName, afterName] = JSON.stringify(sheet({ displayName: 'NAME' })).split('NAME');

const documents: Record<string, (sandbox: ProgramSandbox) => string> = {
  'one sheet among blanks': (sandbox) =>
    writeLarge(sandbox, `${begin}${JSON.stringify(sheet())}`, padded(' '.repeat(PIECE)), ']}'),
  'one sheet with a long name': (sandbox) =>
    writeLarge(sandbox, `${begin}${beforeName}`, padded('n'.repeat(PIECE)), `${afterName}]}`),
  'very many sheets': (sandbox) => writeLarge(sandbox, begin, padded(thousandSheets), `${widest}]}`),
};

for (const [kind, write] of Object.entries(documents)) {
  test(`a document of 200 MB: ${kind}`, async ({ open, sandbox, processes }) => {
    const file = write(sandbox);
    const { size } = statSync(file);
    expect(size).toBeGreaterThanOrEqual(SIZE);
    const peak = new Peak(() => processes[0]?.pid);
    const start = performance.now();
    const seconds = () => ((performance.now() - start) / 1000).toFixed(1);
    const program = await open([file]);
    const outcome = await until('the document or a message', () => outcomeOf(program), LONG);
    console.log(
      `  ${kind}: ${(size / 1e6).toFixed(0)} MB, after ${seconds()} s ${outcome}, at most ${peak.most.toFixed(0)} MB`,
    );
    peak.stop();

    expect(outcome).toMatch(/^(opened|reported: .+)$/);
    expect(await program.call('readFile', sandbox.write('small', 'text'))).toEqual({ success: true, data: 'text' });
    expect(statSync(file).size).toBe(size);
    expect(readdirSync(sandbox.documents).toSorted()).toEqual([NAME, 'small']);
    expect(await program.close()).toBe(0);
  });
}

async function outcomeOf(program: Program): Promise<string | undefined> {
  const [bar, report] = await program.page.evaluate(() => [
    document.querySelector('[role=toolbar][aria-label=Document]')?.textContent ?? '',
    /Failed to [^\n]{1,200}|The provided document[^\n]{1,200}/.exec(document.body.innerText)?.[0] ?? '',
  ]);
  if (report) return `reported: ${report}`;
  return bar.endsWith(NAME) ? 'opened' : undefined;
}
