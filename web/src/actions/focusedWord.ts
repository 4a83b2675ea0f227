import { colorOfBlock } from '../model/color/colorWord';
import { formatColor } from '../model/color/formatColor';
import { formatInteger } from '../model/integer/formatInteger';
import { wordCount } from '../model/integer/wordLayout';
import { type BitRange, rangeWidth, readRange, writeRange, writtenRange } from '../model/range/bitRange';
import { isSigned } from '../model/sheet/signMap';
import { type ChangedWord, withCause } from '../stores/changeCause';
import { inOneStep } from '../stores/history';
import { useSheetsStore } from '../stores/sheetsStore';
import { useSheetStore } from '../stores/sheetStore';
import { showChange } from './shownChange';

/** What an action is done to: a word, or instead of it a range of the sheet's bits, which was chosen there. */
export interface BitsTarget extends ChangedWord {
  readonly range?: BitRange | undefined;
}

/** In bits. */
export function widthOf({ range, bits }: BitsTarget): number {
  return range ? rangeWidth(range) : bits;
}

/** The least significant bit, as the sheet counts them. */
export function lowestBitOf({ range, bits, index }: BitsTarget): number {
  return range ? range.lo : bits * index;
}

/** The word that has the focus, as long as the sheet has it. */
export function focusedWord(): ChangedWord | undefined {
  const { id, int, focusedBlock } = useSheetStore.getState();
  const [type, bits, index] = focusedBlock;
  if (id === null || type === null || index >= wordCount(int.resolution, bits)) return undefined;
  return { type, bits, index };
}

export function valueOf({ range, bits, index }: BitsTarget): bigint {
  const { int } = useSheetStore.getState();
  return range ? readRange(int.value, range) : int.getWord(bits, index);
}

/** The text of a word's main field; of a color, all of it in hexadecimal digits. A range is a number without sign. */
export function mainText(word: BitsTarget): string {
  if (word.range) return valueOf(word).toString();
  if (word.type === 'color32') return formatColor(colorOfBlock(valueOf(word)), 'HEXA');
  const { signMap } = useSheetStore.getState();
  return formatInteger(valueOf(word), 10, word.bits, isSigned(signMap, word.index, word.bits));
}

/** The word at the same place in the sheet with a name, as far as that sheet has it; undefined where there is none. */
export function wordOfSheet(name: string, target: BitsTarget): bigint | undefined {
  const sheets = [...useSheetsStore.getState().sheets.values()];
  const sheet = sheets.find(({ displayName }) => displayName === name);
  const bits = sheet && BigInt.asUintN(sheet.intResolution, sheet.int) >> BigInt(lowestBitOf(target));
  return bits === undefined ? undefined : BigInt.asUintN(widthOf(target), bits);
}

/**
 * Writes a word or range as one step of the history and outlines what changed.
 * @param name - of the step
 * @param resolution - width in bits that the sheet gets with it
 */
export function writeWord({ range, ...word }: BitsTarget, value: bigint, name: string, resolution?: number): void {
  const { id, int } = useSheetStore.getState();
  const step = range ? `${name} ${writtenRange(range)}` : name;
  withCause({ kind: 'command', word, name: step }, () =>
    inOneStep(() => {
      const sheet = useSheetStore.getState();
      if (resolution !== undefined) sheet.setIntResolution(resolution);
      if (range) sheet.setValue(writeRange(sheet.int.value, range, value), word);
      else sheet.updateWord(word.index, word.bits, value);
      if (resolution !== undefined) sheet.focus(word.type, word.bits, word.index);
    }),
  );
  showChange(id, int.value ^ useSheetStore.getState().int.value, word);
}
