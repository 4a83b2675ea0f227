import { focusedWord } from '../../../actions/focusedWord';
import { type BitRange, holds } from '../../../model/range/bitRange';
import { chooseRange } from '../../../stores/bitRange';
import { useSheetStore } from '../../../stores/sheetStore';
import { showBit } from '../bitField/activeBit';
import { focusBit } from '../bitField/focusBit';

/** Chooses a range, and puts the keyboard's cursor on its end in the focused word, or in the widest where that has not all of it. */
export function goToRange(range: BitRange): void {
  const { bits, index } = wordWith(range);
  focusBit({ bits, index }, range.lo - bits * index);
  chooseRange(range.hi, range.lo);
  if (range.hi !== range.lo) showBit(undefined);
}

function wordWith(range: BitRange): { bits: number; index: number } {
  const word = focusedWord();
  const { int, numberDefinitions } = useSheetStore.getState();
  const isShown =
    word !== undefined &&
    numberDefinitions.some(({ type, bits, visible }) => type === 'integer' && bits === word.bits && visible);
  const start = word ? word.bits * word.index : 0;
  if (word && isShown && holds({ hi: start + word.bits - 1, lo: start }, range)) return word;
  return { bits: int.resolution, index: 0 };
}
