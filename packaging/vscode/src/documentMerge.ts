import type { SheetData, WordsDocumentData } from '../../../web/src/document/schema';

/**
 * A document with two sets of edits. Where both changed the same field of a sheet, ours counts. A sheet that one side
 * removed stays if the other one changed it.
 * @param base - what both sides began with
 * @param ours - the base with the edits of one side
 * @param theirs - the base with those of the other side
 */
export function merged(base: WordsDocumentData, ours: WordsDocumentData, theirs: WordsDocumentData): WordsDocumentData {
  if (![base, ours, theirs].every(hasUniqueIds)) return ours;
  const ids = new Set((isSame(idsOf(base), idsOf(ours)) ? [theirs, ours] : [ours, theirs]).flatMap(idsOf));
  const sheets = [...ids].flatMap((id) => {
    const [before, mine, other] = [base, ours, theirs].map((document) =>
      document.sheets.find((sheet) => sheet.id === id),
    );
    return mergedSheet(before, mine, other) ?? [];
  });
  return { ...theirs, sheets };
}

/** Whether no two sheets have the same id, so that an id says which sheet is meant. */
export function hasUniqueIds({ sheets }: WordsDocumentData): boolean {
  return new Set(sheets.map(({ id }) => id)).size === sheets.length;
}

/** The sheets' ids in their order. */
export function idsOf({ sheets }: WordsDocumentData): string[] {
  return sheets.map(({ id }) => id);
}

/** Whether two values are the same as JSON. */
export function isSame(one: unknown, other: unknown): boolean {
  return JSON.stringify(one) === JSON.stringify(other);
}

function mergedSheet(before?: SheetData, ours?: SheetData, theirs?: SheetData): SheetData | undefined {
  if (ours && theirs) return { ...theirs, ...changesOf(before, ours) };
  const left = ours ?? theirs;
  return before && isSame(before, left) ? undefined : left;
}

/** The fields that differ from what they were. One that is gone is undefined. */
function changesOf(before: SheetData | undefined, now: SheetData): Partial<SheetData> {
  const fields = Object.keys({ ...before, ...now }) as (keyof SheetData)[];
  const changed = fields.filter((field) => !isSame(before?.[field], now[field]));
  return Object.fromEntries(changed.map((field) => [field, now[field]]));
}
