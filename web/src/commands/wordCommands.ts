import { allBits } from '../model/integer/wordOperations';
import { type ValueChange, withCause } from '../stores/changeCause';
import { type SheetOperations, useSheetStore } from '../stores/sheetStore';
import type { Command } from './command';

/** One word of the sheet that is shown: its width in bits, and its index counted from 0. */
export interface WordTarget {
  readonly width: number;
  readonly index: number;
}

/** Something to be done to one word at the press of a button. */
export interface WordOperation extends Command<WordTarget> {
  readonly icon: string;
}

function operation<Id extends ValueChange>(
  id: Id,
  icon: string,
  change: (sheet: SheetOperations, index: number, width: number) => void,
) {
  const run = ({ width, index }: WordTarget) =>
    withCause({ kind: id, word: { type: 'integer', bits: width, index } }, () =>
      change(useSheetStore.getState(), index, width),
    );
  return { id, icon, keys: [], label: `words.operations.${id}`, run } as const;
}

/** In the order in which they are offered. Shifts go by one bit. */
export const WORD_OPERATIONS: readonly WordOperation[] = [
  operation('none', '0', (sheet, index, width) => sheet.updateWord(index, width, 0n)),
  operation('all', '1', (sheet, index, width) => sheet.updateWord(index, width, allBits(width))),
  operation('random', '?', (sheet, index, width) => sheet.randomWord(index, width)),
  operation('bitwise-not', '~', (sheet, index, width) => sheet.bitwiseNot(index, width)),
  operation('shift-left', '<<', (sheet, index, width) => sheet.shiftWordLeft(index, width, 1)),
  operation('shift-right', '>>', (sheet, index, width) => sheet.shiftWordRight(index, width, 1)),
  operation('shift-right-unsigned', '>>>', (sheet, index, width) => sheet.shiftWordRightUnsigned(index, width, 1)),
];

/** Icons of operations that need a second word; they have no action. */
export const BINARY_OPERATION_ICONS = { 'bitwise-and': '&', 'bitwise-or': '|', 'bitwise-xor': '^' } as const;

const DIRECT_IN_NARROWEST = 5;

/** How many operations a word has room for; the others are in a menu. */
export function directOperations(width: number): number {
  return width === 8 ? DIRECT_IN_NARROWEST : WORD_OPERATIONS.length;
}

export type Direction = 'left' | 'right' | 'up' | 'down';

/** A word that knows its neighbours. */
export interface WordPlaceTarget {
  /** Gives the focus to the word next to this one. */
  readonly move: (direction: Direction) => void;
}

const DIRECTIONS: Readonly<Record<string, Direction>> = {
  'Alt+ArrowLeft': 'left',
  'Alt+ArrowRight': 'right',
  'Alt+ArrowUp': 'up',
  'Alt+ArrowDown': 'down',
};

export const WORD_COMMANDS: readonly Command<WordPlaceTarget>[] = [
  {
    id: 'word.move',
    keys: Object.keys(DIRECTIONS),
    label: 'commands.word.move',
    repeats: true,
    run: ({ move }, chord) => move(DIRECTIONS[chord!]!),
  },
];
