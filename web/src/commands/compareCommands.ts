import { askForComparison, goToDifference, shownComparison } from '../actions/sheetComparison';
import { endComparison } from '../stores/comparison';
import type { Command } from './command';

/** Where a search for the next difference begins. */
export interface CompareTarget {
  /** The bit of the sheet that the search goes on from; by default the difference that was gone to last. */
  readonly sheetBit?: number | undefined;
}

const isComparing = () => shownComparison() !== undefined;

export const COMPARE_SHEETS: Command<unknown> = {
  id: 'compare.ask',
  keys: ['Mod+D'],
  label: 'commands.compare.ask',
  run: () => askForComparison(),
};

function goesTo(id: 'next' | 'previous', key: string, step: 1 | -1): Command<CompareTarget> {
  return {
    id: `compare.${id}`,
    keys: [key],
    label: `commands.compare.${id}`,
    when: isComparing,
    yields: true,
    repeats: true,
    run: ({ sheetBit }) => goToDifference(step, sheetBit),
  };
}

/** In the order of the menu. */
export const COMPARE_COMMANDS: readonly Command<CompareTarget>[] = [
  COMPARE_SHEETS,
  goesTo('next', 'F3', 1),
  goesTo('previous', 'Shift+F3', -1),
  {
    id: 'compare.end',
    keys: ['Escape'],
    label: 'commands.compare.end',
    when: isComparing,
    yields: true,
    run: endComparison,
  },
];
