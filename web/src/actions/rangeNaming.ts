import { i18next } from '../i18n';
import type { BitRange } from '../model/range/bitRange';
import { type NamedRange, readNames, tidyName } from '../model/range/namedRanges';
import { addNames, namesOf, setNames } from '../stores/rangeNames';
import { useSheetStore } from '../stores/sheetStore';
import { showStatus } from '../ui/statusMessage';

/** The names of the sheet that is shown. */
export function shownNames(): readonly NamedRange[] {
  return namesOf(useSheetStore.getState().id);
}

/** Names bits of the sheet that is shown. A name that is there already goes to these bits. */
export function nameRange(range: BitRange, text: string): void {
  const { id } = useSheetStore.getState();
  const name = tidyName(text);
  if (id !== null && name !== '') addNames(id, [{ name, hi: range.hi, lo: range.lo }]);
}

/** Takes a list of names over, if the text is one, and reports it. @returns whether it is one, be it with a fault in it */
export function pasteNames(text: string): boolean {
  const { id, int } = useSheetStore.getState();
  const names = readNames(text, int.resolution);
  if (!names || id === null) return false;
  if (names.ok) addNames(id, names.value);
  showStatus(names.ok ? i18next.t('ranges.pasted', { count: names.value.length }) : names.reason);
  return true;
}

export function removeNames(): void {
  const { id } = useSheetStore.getState();
  const count = shownNames().length;
  if (id !== null) setNames(id, []);
  showStatus(i18next.t('ranges.removedAll', { count }));
}

export function removeName({ name }: NamedRange): void {
  const { id } = useSheetStore.getState();
  if (id !== null)
    setNames(
      id,
      shownNames().filter((each) => each.name !== name),
    );
  showStatus(i18next.t('ranges.removed', { name }));
}
