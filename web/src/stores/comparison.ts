import { create } from 'zustand';
import type { BitsSheet } from '../model/sheet/bitsSheet';
import { endOutline, outlineBits } from './bitOutlines';
import { useSheetsStore } from './sheetsStore';

/** Two sheets whose values are compared bit by bit; bits that the narrower one does not have count as zero. */
export interface Comparison {
  /** The identifiers of the sheets. */
  readonly pair: readonly [string, string];
  /** A one for each bit that differs, of the width of the wider sheet. */
  readonly differences: bigint;
}

/** The sheets that are compared, as long as there are both. In memory only. */
export const useComparison = create<{ comparison: Comparison | undefined }>()(() => ({ comparison: undefined }));

let unsubscribe = () => {};

/** Compares two sheets, and follows what becomes of them. */
export function compareSheets(first: string, second: string): void {
  const pair = [first, second] as const;
  unsubscribe();
  unsubscribe = useSheetsStore.subscribe(() => follow(pair));
  follow(pair);
}

export function endComparison(): void {
  unsubscribe();
  endOutline('difference');
  useComparison.setState({ comparison: undefined });
}

/** The differences of two sheets' values. */
export function differencesOf(first: BitsSheet, second: BitsSheet): bigint {
  return valueOf(first) ^ valueOf(second);
}

function valueOf({ int, intResolution }: BitsSheet): bigint {
  return BigInt.asUintN(intResolution, int);
}

function follow(pair: Comparison['pair']): void {
  const { sheets, activeSheetKey } = useSheetsStore.getState();
  const [first, second] = pair.map((id) => sheets.get(id));
  if (!first || !second) return endComparison();
  const differences = differencesOf(first, second);
  const { comparison } = useComparison.getState();
  if (comparison?.pair !== pair || comparison.differences !== differences)
    useComparison.setState({ comparison: { pair, differences } });
  // Each of the two shows the outlines while it is the one that is shown.
  outlineBits('difference', pair.find((id) => id === activeSheetKey) ?? null, differences);
}
