import type { Command } from './command';

/** The bits of one word with the keyboard's cursor on one of them. Bits are counted from the least significant. */
export interface BitFieldTarget {
  readonly bits: number;
  readonly bitsPerLine: number;
  readonly cursor: () => number;
  /** A bit beyond the word stands for the nearest one in it. */
  readonly moveCursor: (bit: number) => void;
  readonly toggle: (bit: number) => void;
  readonly write: (bit: number, value: boolean) => void;
}

const BYTE = 8;

export const BIT_FIELD_COMMANDS: readonly Command<BitFieldTarget>[] = [
  {
    id: 'bits.move',
    keys: ['ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown', 'Home', 'End'],
    label: 'commands.bits.move',
    repeats: true,
    run: (field, chord) => field.moveCursor(bitAfter(field, chord!, 1)),
  },
  {
    id: 'bits.moveByByte',
    keys: ['Ctrl+ArrowLeft', 'Ctrl+ArrowRight', 'Ctrl+ArrowUp', 'Ctrl+ArrowDown'],
    label: 'commands.bits.moveByByte',
    repeats: true,
    run: (field, chord) => field.moveCursor(bitAfter(field, chord!.replace('Ctrl+', ''), BYTE)),
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

/** Where a key moves the cursor to. The most significant bit is at the left. */
function bitAfter({ bits, bitsPerLine, cursor }: BitFieldTarget, key: string, step: number): number {
  const bit = cursor();
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
