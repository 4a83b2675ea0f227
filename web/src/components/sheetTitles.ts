import type { BitsSheet } from '../model/sheet/bitsSheet';

export interface SheetTitle {
  readonly id: string;
  readonly name: string;
}

/**
 * Makes a selector for the titles of all sheets in tab order. It gives the same list again until a title changes,
 * so that edits of values do not draw the tabs anew.
 */
export function createTitleSelector(): (store: { sheets: ReadonlyMap<string, BitsSheet> }) => readonly SheetTitle[] {
  let seen: ReadonlyMap<string, BitsSheet> | undefined;
  let titles: readonly SheetTitle[] = [];
  return ({ sheets }) => {
    if (sheets === seen) return titles;
    seen = sheets;
    if (!isUpToDate(titles, sheets))
      titles = [...sheets.values()].map(({ id, displayName }) => ({ id, name: displayName }));
    return titles;
  };
}

function isUpToDate(titles: readonly SheetTitle[], sheets: ReadonlyMap<string, BitsSheet>): boolean {
  if (titles.length !== sheets.size) return false;
  let index = 0;
  for (const { id, displayName } of sheets.values()) {
    const title = titles[index++]!;
    if (title.id !== id || title.name !== displayName) return false;
  }
  return true;
}
