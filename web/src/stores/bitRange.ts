import { create } from 'zustand';
import { type BitRange, rangeBetween, rangeMask } from '../model/range/bitRange';
import { outlineBits } from './bitOutlines';
import { useSheetStore } from './sheetStore';

/** Bits of a sheet from one that stays to one that moves, both included. */
interface ChosenRange {
  readonly sheetId: string | null;
  readonly anchor: number;
  readonly head: number;
}

/** The range that was chosen last, of whatever sheet. In memory only. */
export const useBitRange = create<{ chosen: ChosenRange | undefined }>()(() => ({ chosen: undefined }));

/** Chooses bits of the sheet that is shown, in place of others. Bits beyond the sheet stand for the nearest ones in it. */
export function chooseRange(anchor: number, head: number): void {
  const { id, int } = useSheetStore.getState();
  const inSheet = (bit: number) => Math.max(0, Math.min(int.resolution - 1, bit));
  const chosen = { sheetId: id, anchor: inSheet(anchor), head: inSheet(head) };
  outlineBits('range', id, rangeMask(rangeBetween(chosen.anchor, chosen.head)));
  useBitRange.setState({ chosen });
}

export function endRange(): void {
  outlineBits('range', null, 0n);
  useBitRange.setState({ chosen: undefined });
}

/** The range as it was chosen, as long as the sheet that is shown has all of its bits. */
export function chosenRange(): ChosenRange | undefined {
  const { chosen } = useBitRange.getState();
  const { id, int } = useSheetStore.getState();
  const isThere = chosen?.sheetId === id && Math.max(chosen.anchor, chosen.head) < int.resolution;
  return isThere ? chosen : undefined;
}

export function currentRange(): BitRange | undefined {
  const chosen = chosenRange();
  return chosen && rangeBetween(chosen.anchor, chosen.head);
}
