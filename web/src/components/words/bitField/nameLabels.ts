import { useMemo } from 'react';
import { sharedBits } from '../../../model/range/bitRange';
import { type NamedRange, stackNames } from '../../../model/range/namedRanges';
import { namesOf, useRangeNames } from '../../../stores/rangeNames';

/** A name over the bits of one word. */
export interface NameLabel {
  /** Of the whole name: in the sheet, as it is written. */
  readonly named: NamedRange;
  /** Of the word, both included. */
  readonly hi: number;
  readonly lo: number;
  /** Counted from 0 next to the bits. */
  readonly lane: number;
}

/** Names stacked higher than this are in the list of names only, so that the bits stay in view. */
const MOST_LANES = 8;

const stacked = new WeakMap<readonly NamedRange[], ReturnType<typeof stackNames>>();

function lanesOf(names: readonly NamedRange[]): ReturnType<typeof stackNames> {
  const lanes = stacked.get(names) ?? stackNames(names);
  stacked.set(names, lanes);
  return lanes;
}

/** How many names lie above each other at most. */
export function useNameLanes(sheetId: string | null): number {
  const names = useRangeNames(() => namesOf(sheetId));
  return Math.min(MOST_LANES, Math.max(0, ...[...lanesOf(names).values()].map((lane) => lane + 1)));
}

const NO_LABELS: readonly NameLabel[] = [];

/** The names over a word; the same list until names change. @param width - in bits */
export function useNameLabels(sheetId: string | null, width: number, index: number): readonly NameLabel[] {
  const names = useRangeNames(() => namesOf(sheetId));
  return useMemo(() => (names.length === 0 ? NO_LABELS : labelsOf(names, width, index)), [names, width, index]);
}

function labelsOf(names: readonly NamedRange[], width: number, index: number): readonly NameLabel[] {
  const start = width * index;
  const labels = names.flatMap((named) => {
    const part = sharedBits(named, { hi: start + width - 1, lo: start });
    const lane = lanesOf(names).get(named)!;
    return part && lane < MOST_LANES ? [{ named, hi: part.hi - start, lo: part.lo - start, lane }] : [];
  });
  return labels.length === 0 ? NO_LABELS : labels;
}
