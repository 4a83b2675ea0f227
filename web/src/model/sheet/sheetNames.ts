import { failure, type Result, success } from '../result';

/** The first name "Number A", "Number B", ... "Number Z", "Number AA", ... that no sheet has. */
export function freeSheetName(usedNames: Iterable<string>): string {
  const used = new Set(usedNames);
  for (let position = 0; ; position++) {
    const name = `Number ${letterSequence(position)}`;
    if (!used.has(name)) return name;
  }
}

/** The place'th letter sequence, counted from 0: A to Z, AA to ZZ, AAA and so on. */
export function letterSequence(place: number): string {
  const last = String.fromCharCode(65 + (place % 26));
  return place < 26 ? last : letterSequence(Math.floor(place / 26) - 1) + last;
}

/** Reads a name typed by the user; blanks around it are dropped. */
export function parseSheetName(text: string): Result<string> {
  const name = text.trim();
  return name === '' ? failure('Sheet name cannot be empty.') : success(name);
}
