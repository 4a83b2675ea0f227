import { create } from 'zustand';
import { i18next } from '../i18n';
import { nextSetBit, setBits } from '../model/integer/setBits';
import { compareSheets, type Comparison, useComparison } from '../stores/comparison';
import { useSheetsStore } from '../stores/sheetsStore';
import { useSheetStore } from '../stores/sheetStore';
import { clearStatus, showStatus, statusMessage } from '../ui/statusMessage';
import { type FocusOrigin, focusOrigin, returnFocus } from './focusOrigin';

interface ComparisonRequests {
  /** The sheet that another one is to be chosen for, to compare it with. */
  readonly asked: { readonly sheetId: string; readonly origin: FocusOrigin | undefined } | undefined;
  /** The difference that was gone to last; a new object each time, for the sheet to put the keyboard there. */
  readonly visited: { readonly bit: number; readonly text: string } | undefined;
}

export const useComparisonRequests = create<ComparisonRequests>()(() => ({ asked: undefined, visited: undefined }));

/** What the status line was given last of what differs. */
let report: string | undefined;

function reportDifferences(comparison: Comparison): void {
  report = comparisonText(comparison);
  showStatus(report);
}

/** A report goes when it is no longer true of the sheet that is shown; the line then has what is. */
function endReport(): void {
  const { visited } = useComparisonRequests.getState();
  if ([report, visited?.text].includes(statusMessage.text)) clearStatus();
}

useComparison.subscribe(endReport);
useSheetStore.subscribe(({ id, int }, before) => {
  if (id !== before.id || int.resolution !== before.int.resolution) endReport();
});

/** Asks which sheet to compare a sheet with. @param sheetId - by default the one that is shown */
export function askForComparison(sheetId = useSheetsStore.getState().activeSheetKey): void {
  if (useSheetsStore.getState().sheets.size < 2) return showStatus(i18next.t('compare.none'));
  if (sheetId !== null) useComparisonRequests.setState({ asked: { sheetId, origin: focusOrigin() } });
}

/** Gives the focus back, and a text that was being typed there. */
export function endAsking(): void {
  const { asked } = useComparisonRequests.getState();
  useComparisonRequests.setState({ asked: undefined });
  if (asked?.origin) returnFocus(asked.origin);
}

/** Compares two sheets and shows the first of them. */
export function beginComparison(sheetId: string, other: string): void {
  useComparisonRequests.setState({ visited: undefined });
  useSheetsStore.getState().setActiveSheet(sheetId);
  compareSheets(sheetId, other);
  reportDifferences(useComparison.getState().comparison!);
}

/** The comparison that the sheet that is shown takes part in. */
export function shownComparison(): Comparison | undefined {
  const { comparison } = useComparison.getState();
  const { id } = useSheetStore.getState();
  return comparison?.pair.some((each) => each === id) ? comparison : undefined;
}

/** Goes to the next bit that differs, as far as the sheet that is shown has it. @param from - a bit of the sheet */
export function goToDifference(step: 1 | -1, from = useComparisonRequests.getState().visited?.bit): void {
  const comparison = shownComparison();
  if (!comparison) return;
  const there = BigInt.asUintN(useSheetStore.getState().int.resolution, comparison.differences);
  const bit = nextSetBit(there, from, step);
  if (bit === undefined) return reportDifferences(comparison);
  const bits = setBits(there);
  const text = i18next.t('compare.visited', { place: bits.indexOf(bit) + 1, count: bits.length, bit });
  useComparisonRequests.setState({ visited: { bit, text } });
}

/** How many bits differ and where, such as "12 bits differ, first at 3, last at 190". */
export function comparisonText({ differences }: Comparison): string {
  const bits = setBits(differences);
  const text = i18next.t('compare.found', { count: bits.length, first: bits[0] ?? 0, last: bits.at(-1) ?? 0 });
  const { resolution } = useSheetStore.getState().int;
  const beyond = bits.filter((bit) => bit >= resolution).length;
  return beyond === 0 ? text : `${text}; ${i18next.t('compare.beyond', { count: beyond, bits: resolution })}`;
}
