import { create } from 'zustand';

/**
 * Why bits are outlined: a command changed or would change them, they differ from another sheet, or they are the range
 * that was chosen. Each reason has its own outline, so that a bit can have several.
 */
export const OUTLINE_KINDS = ['changed', 'difference', 'range'] as const;
export type OutlineKind = (typeof OUTLINE_KINDS)[number];

interface OutlinedBits {
  /** The outline is seen while this sheet is shown. */
  readonly sheetId: string | null;
  /** A one for each bit of the sheet's value that is outlined. */
  readonly bits: bigint;
}

const NONE: OutlinedBits = { sheetId: null, bits: 0n };

/** The bits that are outlined, for bit fields to draw. In memory only. */
export const useBitOutlines = create<Readonly<Record<OutlineKind, OutlinedBits>>>()(() => ({
  changed: NONE,
  difference: NONE,
  range: NONE,
}));

/** Outlines bits of a sheet, in place of those that were outlined for the same reason. @param bits - a one for each */
export function outlineBits(kind: OutlineKind, sheetId: string | null, bits: bigint): void {
  const before = useBitOutlines.getState()[kind];
  if (before.sheetId === sheetId && before.bits === bits) return;
  useBitOutlines.setState({ [kind]: { sheetId, bits } });
}

export function endOutline(kind: OutlineKind): void {
  outlineBits(kind, null, 0n);
}
