// A document in the window of the Linux program, as its user sees and saves it.
import { readFileSync } from 'node:fs';
import { until } from '../shared/until';
import type { Program } from './program';

/** The values of a document's sheets as they are on disk. */
export function savedValues(file: string): string[] {
  return JSON.parse(readFileSync(file, 'utf8')).sheets.map(({ int }: { int: string }) => int);
}

/** Types into the first word's field with the keyboard, as its user would. */
export async function enterValue(program: Program, text: string) {
  await until('a field', () =>
    program.page.evaluate(() => {
      const field = document.querySelector<HTMLInputElement | HTMLTextAreaElement>('[aria-label="Value"]');
      field?.focus();
      field?.select();
      return document.activeElement === field && field !== null;
    }),
  );
  program.desktop.focus(program.window);
  program.desktop.type(text);
  program.desktop.press('Return');
  await shown(program, text);
}

export function shown(program: Program, value: string) {
  return until(`the value ${value}`, () =>
    program.page.evaluate(
      (wanted) =>
        document.querySelector<HTMLInputElement | HTMLTextAreaElement>('[aria-label="Value"]')?.value === wanted,
      value,
    ),
  );
}

/** The document bar's file name, with its mark for what is not saved. */
export const barShows = (program: Program, text: string) =>
  until(`"${text}" in the document bar`, () =>
    program.page.evaluate(
      (wanted) => document.querySelector('[role=toolbar][aria-label=Document]')?.textContent.endsWith(wanted) ?? false,
      text,
    ),
  );
