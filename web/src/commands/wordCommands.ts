import { i18next } from '../i18n';
import { formatInteger } from '../model/integer/formatInteger';
import { allBits } from '../model/integer/wordOperations';
import { definitionLabel } from '../model/sheet/numberDefinitions';
import { isSigned } from '../model/sheet/signMap';
import { withCause } from '../stores/changeCause';
import { type SheetOperations, useSheetStore } from '../stores/sheetStore';
import { showStatus } from '../ui/statusMessage';
import type { Command } from './command';
import { DIGIT_OR_LETTER } from './keyChord';
import { OPERATION_ICONS, type OperationId } from './operationIcons';

/** One word of the sheet that is shown: its width in bits, and its index counted from 0. */
export interface WordTarget {
  readonly width: number;
  readonly index: number;
}

/** Something to be done to one word at the press of a button. */
export interface WordOperation extends Command<WordTarget> {
  readonly id: OperationId;
  readonly icon: string;
}

type Change = (sheet: SheetOperations, index: number, width: number) => void;

/** Shifts go by one bit. */
const CHANGES: Readonly<Record<OperationId, Change>> = {
  none: (sheet, index, width) => sheet.updateWord(index, width, 0n),
  all: (sheet, index, width) => sheet.updateWord(index, width, allBits(width)),
  random: (sheet, index, width) => sheet.randomWord(index, width),
  'bitwise-not': (sheet, index, width) => sheet.bitwiseNot(index, width),
  'shift-left': (sheet, index, width) => sheet.shiftWordLeft(index, width, 1),
  'shift-right': (sheet, index, width) => sheet.shiftWordRight(index, width, 1),
  'shift-right-unsigned': (sheet, index, width) => sheet.shiftWordRightUnsigned(index, width, 1),
};

/** In the order in which they are offered. */
export const WORD_OPERATIONS: readonly WordOperation[] = OPERATION_ICONS.map(({ id, icon }) => ({
  id,
  icon,
  keys: [],
  label: `words.operations.${id}`,
  run({ width, index }) {
    withCause({ kind: id, word: { type: 'integer', bits: width, index } }, () =>
      CHANGES[id](useSheetStore.getState(), index, width),
    );
    showStatus(outcome(id, width, index));
  },
}));

/** Numbers longer than this are shortened where they are only reported. */
const LONGEST_REPORT = 40;

/** What an operation made of a word, for the status line, where a screen reader hears it. */
function outcome(id: OperationId, width: number, index: number): string {
  const { int, signMap } = useSheetStore.getState();
  const value = formatInteger(int.getWord(width, index), 10, width, isSigned(signMap, index, width));
  const isLong = value.length > LONGEST_REPORT;
  return i18next.t('words.changed', {
    action: i18next.t(`words.operations.${id}`),
    word: i18next.t('words.block', { row: definitionLabel({ type: 'integer', bits: width }), number: index + 1 }),
    value: isLong ? `${value.slice(0, LONGEST_REPORT)}…` : value,
  });
}

export type Direction = 'left' | 'right' | 'up' | 'down';

/** A word that knows its neighbours. */
export interface WordPlaceTarget {
  /** The keyboard is in the word's header, where no text is typed. */
  readonly isHeader: boolean;
  /** Gives the focus to the word next to this one. */
  readonly move: (direction: Direction) => void;
  /** Gives the focus to the field of the base that was typed in last, for the pressed key to replace its text. */
  readonly type: () => void;
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
  {
    id: 'word.type',
    keys: [DIGIT_OR_LETTER],
    label: 'commands.word.type',
    when: ({ isHeader }) => isHeader,
    yields: true,
    passesOn: true,
    run: ({ type }) => type(),
  },
];
