import { create } from 'zustand';
import { type Rgba, withChannel, withColor } from '../model/color/colorWord';
import { BitInt } from '../model/integer/bitInt';
import type { BitsSheet, BitsSheetFields, FocusedBlock } from '../model/sheet/bitsSheet';
import { type FlagOptions, hasFlagOption, withFlagOption, withFlagOptionToggled } from '../model/sheet/flagOptions';
import {
  definitionsFor,
  type NumberDefinition,
  type NumberType,
  withVisibility,
} from '../model/sheet/numberDefinitions';
import { DEFAULT_RESOLUTION } from '../model/sheet/resolutions';
import { ScrollMap } from '../model/sheet/scrollMap';
import { filledSignMap, toggleSign } from '../model/sheet/signMap';
import { type ChangedWord, type ValueChange, withCause } from './changeCause';

/** The sheet being shown. Everything in it is replaced, never changed in place. */
export interface SheetState extends Omit<BitsSheetFields, 'id' | 'int' | 'intResolution'> {
  /** Null while no sheet is shown. */
  readonly id: string | null;
  /** The value, always within its resolution. */
  readonly int: BitInt;
  /** Grows with every operation. */
  readonly revision: number;
}

/** Words are counted from 0, widths and counts are in bits, bit 0 is the least significant of its word. */
export interface SheetOperations {
  updateWord(index: number, width: number, value: bigint): void;
  /** Replaces the whole value. @param word - that the change is about */
  setValue(value: bigint, word: ChangedWord): void;
  randomWord(index: number, width: number): void;
  toggleWordBit(index: number, width: number, bit: number): void;
  toggleWordSign(index: number, width: number): void;
  shiftWordLeft(index: number, width: number, count: number): void;
  /** Fills with the word's top bit, whether the word is shown signed or not. */
  shiftWordRight(index: number, width: number, count: number, signed?: boolean): void;
  shiftWordRightUnsigned(index: number, width: number, count: number): void;
  bitwiseNot(index: number, width: number): void;
  /** @param channel - red 0, green 1, blue 2, alpha 3 */
  updateColor32Part(block: number, channel: number, byte: number): void;
  updateColor32(block: number, color: Rgba, withAlpha: boolean): void;
  /** Shows or hides a row; the one of full width always stays. */
  setNumberVisibility(definition: Pick<NumberDefinition, 'type' | 'bits'>, visible: boolean): void;
  setConverters(converters: readonly string[] | undefined): void;
  setFlagOption(option: string, on?: boolean): void;
  setFlagOptions(options: FlagOptions): void;
  toggleFlagOption(option: string): void;
  hasFlagOption(option: string): boolean;
  setIntResolution(width: number): void;
  setScrollMap(scrollMap: ScrollMap): void;
  setSheet(sheet: BitsSheet): void;
  focus(type: NumberType, width: number, index: number): void;
  /** Clears the focus where it is on this word. */
  unfocus(type: NumberType, width: number, index: number): void;
  reset(): void;
}

type Changes = Partial<Omit<SheetState, 'id' | 'revision'>>;

const NO_BLOCK: FocusedBlock = [null, null, null];
const COLOR_WIDTH = 32;

function emptyState(): Omit<SheetState, 'revision'> {
  return {
    id: null,
    displayName: '',
    int: new BitInt(0n, DEFAULT_RESOLUTION),
    focusedBlock: ['integer', DEFAULT_RESOLUTION, 0],
    signMap: filledSignMap(DEFAULT_RESOLUTION),
    scrollMap: ScrollMap.empty,
    numberDefinitions: definitionsFor(DEFAULT_RESOLUTION),
    converters: undefined,
    flagOptions: [],
  };
}

/** The editing state: the sheet being shown and everything that can be done to it. */
export const useSheetStore = create<SheetState & SheetOperations>()((set, get) => {
  function apply(changes: Changes): void {
    set(({ revision }) => ({ ...changes, revision: revision + 1 }));
  }

  function edit(kind: ValueChange, word: ChangedWord, change: (int: BitInt) => BitInt): void {
    withCause({ kind, word }, () => apply({ int: change(get().int) }));
  }

  function editWord(kind: ValueChange, index: number, bits: number, change: (int: BitInt) => BitInt): void {
    edit(kind, { type: 'integer', bits, index }, change);
  }

  function editColor(block: number, change: (word: bigint) => bigint): void {
    edit('color', { type: 'color32', bits: COLOR_WIDTH, index: block }, (int) =>
      int.setWord(COLOR_WIDTH, block, change(int.getWord(COLOR_WIDTH, block))),
    );
  }

  return {
    ...emptyState(),
    revision: 0,

    updateWord: (index, width, value) => editWord('edit', index, width, (int) => int.setWord(width, index, value)),
    setValue: (value, word) => edit('edit', word, (int) => int.withValue(value)),
    randomWord: (index, width) => editWord('random', index, width, (int) => int.random(width, index)),
    toggleWordBit: (index, width, bit) => editWord('bit', index, width, (int) => int.toggleBit(width, index, bit)),
    toggleWordSign: (index, width) => apply({ signMap: toggleSign(get().signMap, index, width) }),
    shiftWordLeft: (index, width, count) =>
      editWord('shift-left', index, width, (int) => int.shiftLeft(width, index, count)),
    shiftWordRight: (index, width, count) =>
      editWord('shift-right', index, width, (int) => int.shiftRight(width, index, count)),
    shiftWordRightUnsigned: (index, width, count) =>
      editWord('shift-right-unsigned', index, width, (int) => int.shiftRightUnsigned(width, index, count)),
    bitwiseNot: (index, width) => editWord('bitwise-not', index, width, (int) => int.not(width, index)),

    updateColor32Part: (block, channel, byte) => editColor(block, (word) => withChannel(word, channel, byte)),
    updateColor32: (block, color, withAlpha) => editColor(block, (word) => withColor(word, color, withAlpha)),

    setNumberVisibility(definition, visible) {
      const before = get().numberDefinitions;
      const after = withVisibility(before, definition, visible);
      if (after.some((each, position) => each.visible !== before[position]!.visible))
        apply({ numberDefinitions: after });
    },
    setConverters: (converters) => apply({ converters }),

    setFlagOption: (option, on = true) => apply({ flagOptions: withFlagOption(get().flagOptions, option, on) }),
    setFlagOptions: (flagOptions) => apply({ flagOptions }),
    toggleFlagOption: (option) => apply({ flagOptions: withFlagOptionToggled(get().flagOptions, option) }),
    hasFlagOption: (option) => hasFlagOption(get().flagOptions, option),

    setIntResolution(width) {
      const { int, numberDefinitions } = get();
      apply({
        int: int.withResolution(width),
        numberDefinitions: definitionsFor(width, numberDefinitions),
        // Positions count from the most significant end, which moves: rows begin at their other end again.
        scrollMap: ScrollMap.empty,
      });
    },
    setScrollMap: (scrollMap) => apply({ scrollMap }),

    setSheet(sheet) {
      const { int, intResolution, numberDefinitions, ...shown } = sheet;
      set({
        ...shown,
        int: new BitInt(int, intResolution),
        numberDefinitions: keptIfSame(get().numberDefinitions, definitionsFor(intResolution, numberDefinitions)),
        revision: get().revision + 1,
      });
    },

    focus(type, width, index) {
      if (!isFocused(get(), type, width, index)) apply({ focusedBlock: [type, width, index] });
    },
    unfocus(type, width, index) {
      if (isFocused(get(), type, width, index)) apply({ focusedBlock: NO_BLOCK });
    },

    reset: () => set({ ...emptyState(), revision: get().revision + 1 }),
  };
});

// The same rows as before stay the same list, so that nothing is laid out again for another sheet of the same shape.
function keptIfSame(before: readonly NumberDefinition[], after: readonly NumberDefinition[]) {
  const isSame = ({ type, bits, visible }: NumberDefinition, index: number) => {
    const old = before[index];
    return old?.type === type && old.bits === bits && old.visible === visible;
  };
  return before.length === after.length && after.every(isSame) ? before : after;
}

export function isFocused({ focusedBlock }: SheetState, type: NumberType, width: number, index: number): boolean {
  return focusedBlock[0] === type && focusedBlock[1] === width && focusedBlock[2] === index;
}
