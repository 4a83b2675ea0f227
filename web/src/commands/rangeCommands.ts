import type { BitsTarget } from '../actions/focusedWord';
import { copyNames } from '../actions/namesClipboard';
import { clearBits, invertBits } from '../actions/rangeEdits';
import { removeNames, shownNames } from '../actions/rangeNaming';
import { askForRange } from '../actions/rangePrompt';
import { currentRange, endRange } from '../stores/bitRange';
import { isTextBeingAltered } from '../ui/alteredText';
import { areNoticesOpen } from '../ui/notifications';
import type { Command } from './command';

/** Bits that were chosen, or the word that a command is about where none are. */
interface RangeTarget {
  readonly word: BitsTarget;
}

const hasRange = ({ word }: RangeTarget) => word.range !== undefined;
const hasNames = () => shownNames().length > 0;

export const GO_TO_BITS: Command<unknown> = {
  id: 'range.goTo',
  keys: ['Mod+G'],
  label: 'commands.range.goTo',
  run: () => askForRange({ kind: 'goTo' }),
};

/** What keys do also where no word has the focus. */
export const SHEET_COMMANDS: readonly Command<unknown>[] = [
  GO_TO_BITS,
  {
    id: 'range.end',
    keys: ['Escape'],
    label: 'commands.range.end',
    when: () => currentRange() !== undefined && !areNoticesOpen() && !isTextBeingAltered(),
    yields: true,
    run: endRange,
  },
];

/** What the menu offers of bits that were chosen and of names, in its order. */
export const RANGE_MENU: readonly Command<RangeTarget>[] = [
  {
    id: 'range.writeAsked',
    keys: [],
    label: 'commands.range.writeAsked',
    when: hasRange,
    run: ({ word }) => askForRange({ kind: 'write', target: word }),
  },
  { id: 'range.clear', keys: [], label: 'commands.range.clear', when: hasRange, run: ({ word }) => clearBits(word) },
  { id: 'range.invert', keys: [], label: 'commands.range.invert', when: hasRange, run: ({ word }) => invertBits(word) },
  {
    id: 'range.name',
    keys: [],
    label: 'commands.range.name',
    when: hasRange,
    run: ({ word }) => askForRange({ kind: 'name', target: word }),
  },
  { id: 'range.copyNames', keys: [], label: 'commands.range.copyNames', when: hasNames, run: copyNames },
  { id: 'range.removeNames', keys: [], label: 'commands.range.removeNames', when: hasNames, run: removeNames },
];
