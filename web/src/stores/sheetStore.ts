import { create } from 'zustand';
import { BitInt } from '../model/integer/bitInt';
import { withChannel, withColor, type Rgba } from '../model/color/colorWord';
import { hasFlagOption, withFlagOption, withFlagOptionToggled, type FlagOptions } from '../model/sheet/flagOptions';
import {
  definitionsFor,
  withVisibility,
  type NumberDefinition,
  type NumberType,
} from '../model/sheet/numberDefinitions';
import { DEFAULT_RESOLUTION } from '../model/sheet/resolutions';
import { filledSignMap, toggleSign, type SignMap } from '../model/sheet/signMap';
import type { BitsSheet, FocusedBlock, SheetChanges } from '../model/sheet/bitsSheet';
import { ScrollMap } from '../model/sheet/scrollMap';
import { useSheetsStore } from './sheetsStore';

/** The sheet being shown. Everything in it is replaced, never changed in place. */
export interface SheetState {
  /** Null while no sheet is shown. */
  readonly id: string | null;
  readonly displayName: string;
  /** The value, always within its resolution. */
  readonly int: BitInt;
  readonly focusedBlock: FocusedBlock;
  readonly signMap: SignMap;
  readonly scrollMap: ScrollMap;
  readonly numberDefinitions: readonly NumberDefinition[];
  /** Absent means the default ones. */
  readonly converters: readonly string[] | undefined;
  readonly flagOptions: FlagOptions;
  /** Grows with every operation. */
  readonly revision: number;
}

/** Words are counted from 0, widths and counts are in bits, bit 0 is the least significant of its word. */
export interface SheetOperations {
  updateWord(index: number, width: number, value: bigint): void;
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
    passOn(get().id, changes);
  }

  function edit(change: (int: BitInt) => BitInt): void {
    apply({ int: change(get().int) });
  }

  function editColor(block: number, change: (word: bigint) => bigint): void {
    edit((int) => int.setWord(COLOR_WIDTH, block, change(int.getWord(COLOR_WIDTH, block))));
  }

  return {
    ...emptyState(),
    revision: 0,

    updateWord: (index, width, value) => edit((int) => int.setWord(width, index, value)),
    randomWord: (index, width) => edit((int) => int.random(width, index)),
    toggleWordBit: (index, width, bit) => edit((int) => int.toggleBit(width, index, bit)),
    toggleWordSign: (index, width) => apply({ signMap: toggleSign(get().signMap, index, width) }),
    shiftWordLeft: (index, width, count) => edit((int) => int.shiftLeft(width, index, count)),
    shiftWordRight: (index, width, count) => edit((int) => int.shiftRight(width, index, count)),
    shiftWordRightUnsigned: (index, width, count) => edit((int) => int.shiftRightUnsigned(width, index, count)),
    bitwiseNot: (index, width) => edit((int) => int.not(width, index)),

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
      apply({ int: int.withResolution(width), numberDefinitions: definitionsFor(width, numberDefinitions) });
    },
    setScrollMap: (scrollMap) => apply({ scrollMap }),

    setSheet(sheet) {
      const { id, displayName, focusedBlock, signMap, scrollMap, converters, flagOptions, intResolution } = sheet;
      set({
        id,
        displayName,
        int: new BitInt(sheet.int, intResolution),
        focusedBlock,
        signMap,
        scrollMap,
        numberDefinitions: keptIfSame(get().numberDefinitions, definitionsFor(intResolution, sheet.numberDefinitions)),
        converters,
        flagOptions,
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
  const isSame = ({ type, bits, visible }: NumberDefinition, at: number) => {
    const old = before[at];
    return old?.type === type && old.bits === bits && old.visible === visible;
  };
  return before.length === after.length && after.every(isSame) ? before : after;
}

export function isFocused({ focusedBlock }: SheetState, type: NumberType, width: number, index: number): boolean {
  return focusedBlock[0] === type && focusedBlock[1] === width && focusedBlock[2] === index;
}

/** The active sheet as the sheets store last held it, to tell our own changes from those of others. */
let known: BitsSheet | undefined;
let isPassingOn = false;

function passOn(id: string | null, changes: Changes): void {
  if (id === null) return;
  const stored = useSheetsStore.getState().sheets.get(id);
  const fields = sheetChanges(changes);
  if (stored && !differs(stored, fields)) return;
  isPassingOn = true;
  try {
    useSheetsStore.getState().updateSheet(id, fields);
  } finally {
    isPassingOn = false;
  }
}

function sheetChanges({ int, ...others }: Changes): SheetChanges {
  return int ? { ...others, int: int.value, intResolution: int.resolution } : others;
}

// An edit that leaves everything as it was, such as Enter in an untouched field, makes no document unsaved.
function differs(sheet: BitsSheet, changes: SheetChanges): boolean {
  return (Object.keys(changes) as (keyof SheetChanges)[]).some((field) => sheet[field] !== changes[field]);
}

/** Shows the active sheet whenever it is another one or was changed by someone else. */
function follow(): void {
  const sheet = useSheetsStore.getState().getActiveSheet();
  if (sheet === known) return;
  known = sheet;
  if (isPassingOn) return;
  if (sheet) useSheetStore.getState().setSheet(sheet);
  else useSheetStore.getState().reset();
}

useSheetsStore.subscribe(follow);
follow();
