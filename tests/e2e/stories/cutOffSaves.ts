import { expect } from '@playwright/test';
import { readFileSync } from 'node:fs';
import type { RunningProgram } from '../support/shared/runningProgram';
import { until } from '../support/shared/until';

/** In bytes. */
export const savedLengths = [2_000, 200_000, 4_000_000];

/** Where a document's new text stands while it is written. */
export const copyOf = (file: string) => `${file}.new-text`;

/** Two texts of this length, saved in turn for as long as the program lives. */
function saveForEver(file: string, length: number) {
  const { writeFile } = window as unknown as { writeFile: (path: string, text: string) => Promise<unknown> };
  const counted = window as { saves?: number };
  const save = async (): Promise<void> => {
    const turn = counted.saves ?? 0;
    await writeFile(file, (turn % 2 === 0 ? 'a' : 'b').repeat(length));
    counted.saves = turn + 1;
    return save();
  };
  void save();
}

async function lengthOfWholeText(file: string) {
  const { readFile } = window as unknown as { readFile: (path: string) => Promise<{ data?: string }> };
  const { data = '' } = await readFile(file);
  return /^(a+|b+)$/.test(data) ? data.length : `${data.length} of both`;
}

/**
 * Kills the program in the midst of saves without a pause, and opens the document with another: it must be whole.
 * @param file - the document as the program calls it
 * @param seen - the same as this machine calls it
 * @param kills - how often
 */
export async function expectWholeAfterKills(
  open: () => Promise<RunningProgram>,
  { file, seen, length, kills }: { file: string; seen: string; length: number; kills: number },
) {
  let program = await open();
  for (let kill = 0; kill < kills; kill++) {
    const { page } = program;
    await page.evaluate(saveForEver, file, length);
    await until('some saves', () => page.evaluate(() => ((window as { saves?: number }).saves ?? 0) > 2));
    await program.process.end();
    program = await open();
    expect(await program.page.evaluate(lengthOfWholeText, file)).toBe(length);
    expect(readFileSync(seen, 'utf8')).toMatch(/^(a+|b+)$/);
  }
}
