import { allBits } from '../model/integer/wordOperations';
import type { SheetOperations } from '../stores/sheetStore';

/** Something to be done to one word at the press of a button. */
export interface WordOperation {
  readonly id: 'none' | 'all' | 'random' | 'bitwise-not' | 'shift-left' | 'shift-right' | 'shift-right-unsigned';
  readonly icon: string;
  readonly run: (sheet: SheetOperations, index: number, width: number) => void;
}

/** In the order in which they are offered. Shifts go by one bit. */
export const WORD_OPERATIONS: readonly WordOperation[] = [
  { id: 'none', icon: '0', run: (sheet, index, width) => sheet.updateWord(index, width, 0n) },
  { id: 'all', icon: '1', run: (sheet, index, width) => sheet.updateWord(index, width, allBits(width)) },
  { id: 'random', icon: '?', run: (sheet, index, width) => sheet.randomWord(index, width) },
  { id: 'bitwise-not', icon: '~', run: (sheet, index, width) => sheet.bitwiseNot(index, width) },
  { id: 'shift-left', icon: '<<', run: (sheet, index, width) => sheet.shiftWordLeft(index, width, 1) },
  { id: 'shift-right', icon: '>>', run: (sheet, index, width) => sheet.shiftWordRight(index, width, 1) },
  {
    id: 'shift-right-unsigned',
    icon: '>>>',
    run: (sheet, index, width) => sheet.shiftWordRightUnsigned(index, width, 1),
  },
];

/** Icons of operations that need a second word; they have no action yet. */
export const BINARY_OPERATION_ICONS = { 'bitwise-and': '&', 'bitwise-or': '|', 'bitwise-xor': '^' } as const;

const DIRECT_IN_NARROWEST = 5;

/** How many operations a word has room for; the others are in a menu. */
export function directOperations(width: number): number {
  return width === 8 ? DIRECT_IN_NARROWEST : WORD_OPERATIONS.length;
}
