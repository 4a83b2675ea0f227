import { expect } from '@playwright/test';
import { existsSync, readFileSync } from 'node:fs';
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

/**
 * Kills the program in the midst of saves without a pause: the document or its copy must be whole.
 * @param file - the document as the program calls it
 * @param seen - the same as this machine calls it
 */
export async function expectWholeAfterKill(program: RunningProgram, file: string, seen: string, length: number) {
  const isWhole = (path: string) => {
    const text = existsSync(path) ? readFileSync(path, 'utf8') : '';
    return text.length === length && /^(a+|b+)$/.test(text);
  };
  await program.page.evaluate(saveForEver, file, length);
  await until('some saves', () => program.page.evaluate(() => ((window as { saves?: number }).saves ?? 0) > 2));
  await program.process.end();
  expect(isWhole(seen) || isWhole(copyOf(seen))).toBe(true);
}
