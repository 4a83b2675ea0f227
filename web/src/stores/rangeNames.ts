import { create } from 'zustand';
import { isVsCode } from '../host/hostFlags';
import { type NamedRange, withNames } from '../model/range/namedRanges';
import { isReplaced } from './documentStep';
import { useSheetsStore } from './sheetsStore';

/** The names of bits by sheet, for as long as the document is open. Neither documents nor the record hold them. */
export const useRangeNames = create<{ bySheet: ReadonlyMap<string, readonly NamedRange[]> }>()(() => ({
  bySheet: new Map(),
}));

const NONE: readonly NamedRange[] = [];

/** The most significant first. The same list until a name changes. */
export function namesOf(sheetId: string | null): readonly NamedRange[] {
  return useRangeNames.getState().bySheet.get(sheetId ?? '') ?? NONE;
}

export function addNames(sheetId: string, names: readonly NamedRange[]): void {
  setNames(sheetId, withNames(namesOf(sheetId), names));
}

export function setNames(sheetId: string, names: readonly NamedRange[]): void {
  useRangeNames.setState(({ bySheet }) => ({ bySheet: new Map(bySheet).set(sheetId, names) }));
}

// Another document can have sheets with the same identifiers, such as the same document opened again. An editor sends the
// one document of its view again with each of its own changes.
if (!isVsCode) {
  useSheetsStore.subscribe((now, before) => {
    if (isReplaced(before, now)) useRangeNames.setState({ bySheet: new Map() });
  });
}
