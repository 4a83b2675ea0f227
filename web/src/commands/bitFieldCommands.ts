import type { BitsTarget } from '../actions/focusedWord';
import { clearBits, invertBits } from '../actions/rangeEdits';
import { askForRange } from '../actions/rangePrompt';
import { rangeWidth } from '../model/range/bitRange';
import type { Command } from './command';
import { DIGIT } from './keyChord';

/** The bits of one word with the keyboard's cursor on one of them. Bits are counted from the least significant. */
export interface BitFieldTarget {
  readonly bits: number;
  readonly bitsPerLine: number;
  readonly cursor: () => number;
  /** A bit beyond the word stands for the nearest one in it. */
  readonly moveCursor: (bit: number) => void;
  /** The end of the chosen bits that moves; the cursor's bit while none are chosen here. It may lie beyond the word. */
  readonly head: () => number;
  /** Chooses the bits from where the choice began to one, which may lie beyond the word. */
  readonly extendTo: (bit: number) => void;
  /** The bits that are chosen, anywhere in the sheet. */
  readonly chosen: () => BitsTarget | undefined;
  readonly toggle: (bit: number) => void;
  readonly write: (bit: number, value: boolean) => void;
}

const BYTE = 8;
const ONE_BIT = { hi: 0, lo: 0 };

export const BIT_FIELD_COMMANDS: readonly Command<BitFieldTarget>[] = [
  {
    id: 'bits.move',
    keys: ['ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown', 'Home', 'End'],
    label: 'commands.bits.move',
    repeats: true,
    run: (field, chord) => field.moveCursor(bitAfter(field, field.cursor(), chord!, 1)),
  },
  {
    id: 'bits.moveByByte',
    keys: ['Ctrl+ArrowLeft', 'Ctrl+ArrowRight', 'Ctrl+ArrowUp', 'Ctrl+ArrowDown'],
    label: 'commands.bits.moveByByte',
    repeats: true,
    run: (field, chord) => field.moveCursor(bitAfter(field, field.cursor(), chord!.replace('Ctrl+', ''), BYTE)),
  },
  {
    id: 'range.extend',
    keys: ['ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown', 'Home', 'End'].map((key) => `Shift+${key}`),
    label: 'commands.range.extend',
    repeats: true,
    run: (field, chord) => field.extendTo(bitAfter(field, field.head(), chord!.replace('Shift+', ''), 1)),
  },
  {
    id: 'range.extendByByte',
    keys: ['ArrowLeft', 'ArrowRight'].map((key) => `Ctrl+Shift+${key}`),
    label: 'commands.range.extendByByte',
    repeats: true,
    run: (field, chord) => field.extendTo(bitAfter(field, field.head(), chord!.replace('Ctrl+Shift+', ''), BYTE)),
  },
  {
    id: 'range.write',
    keys: [DIGIT],
    label: 'commands.range.write',
    // Into one bit, 0 and 1 are written without being asked for.
    when: ({ chosen }) => rangeWidth(chosen()?.range ?? ONE_BIT) > 1,
    yields: true,
    passesOn: true,
    run: ({ chosen }) => askForRange({ kind: 'write', target: chosen()! }),
  },
  {
    id: 'range.clear',
    keys: ['Delete'],
    label: 'commands.range.clear',
    when: ({ chosen }) => chosen() !== undefined,
    yields: true,
    run: ({ chosen }) => clearBits(chosen()!),
  },
  {
    id: 'range.invert',
    keys: ['~'],
    label: 'commands.range.invert',
    when: ({ chosen }) => chosen() !== undefined,
    yields: true,
    run: ({ chosen }) => invertBits(chosen()!),
  },
  {
    id: 'bits.toggle',
    keys: ['Space'],
    label: 'commands.bits.toggle',
    repeats: true,
    run({ cursor, toggle, moveCursor }) {
      toggle(cursor());
      moveCursor(cursor());
    },
  },
  {
    id: 'bits.write',
    keys: ['0', '1'],
    label: 'commands.bits.write',
    repeats: true,
    run({ cursor, write, moveCursor }, chord) {
      write(cursor(), chord === '1');
      moveCursor(cursor() - 1);
    },
  },
];

/** Where a key leads to from a bit. The most significant bit is at the left. */
function bitAfter({ bits, bitsPerLine }: BitFieldTarget, bit: number, key: string, step: number): number {
  switch (key) {
    case 'ArrowLeft':
      return bit + step;
    case 'ArrowRight':
      return bit - step;
    case 'ArrowUp':
      return bit + bitsPerLine < bits ? bit + bitsPerLine : bit;
    case 'ArrowDown':
      return bit - bitsPerLine >= 0 ? bit - bitsPerLine : bit;
    case 'Home':
      return bits - 1;
    default:
      return 0;
  }
}
