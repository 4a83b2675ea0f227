import { colorOfBlock } from '../model/color/colorWord';
import { formatColor } from '../model/color/formatColor';
import { formatInteger } from '../model/integer/formatInteger';
import { wordCount } from '../model/integer/wordLayout';
import { isSigned } from '../model/sheet/signMap';
import { type ChangedWord, withCause } from '../stores/changeCause';
import { inOneStep } from '../stores/history';
import { useSheetsStore } from '../stores/sheetsStore';
import { useSheetStore } from '../stores/sheetStore';
import { showChange } from './shownChange';

/** The word that has the focus, as long as the sheet has it. */
export function focusedWord(): ChangedWord | undefined {
  const { id, int, focusedBlock } = useSheetStore.getState();
  const [type, bits, index] = focusedBlock;
  if (id === null || type === null || index >= wordCount(int.resolution, bits)) return undefined;
  return { type, bits, index };
}

export function valueOf({ bits, index }: ChangedWord): bigint {
  return useSheetStore.getState().int.getWord(bits, index);
}

/** The text of a word's main field; of a color, all of it in hexadecimal digits. */
export function mainText(word: ChangedWord): string {
  if (word.type === 'color32') return formatColor(colorOfBlock(valueOf(word)), 'HEXA');
  const { signMap } = useSheetStore.getState();
  return formatInteger(valueOf(word), 10, word.bits, isSigned(signMap, word.index, word.bits));
}

/** The word at the same place in the sheet with a name, as far as that sheet has it; undefined where there is none. */
export function wordOfSheet(name: string, { bits, index }: ChangedWord): bigint | undefined {
  const sheets = [...useSheetsStore.getState().sheets.values()];
  const sheet = sheets.find(({ displayName }) => displayName === name);
  return sheet && BigInt.asUintN(bits, BigInt.asUintN(sheet.intResolution, sheet.int) >> BigInt(bits * index));
}

/**
 * Writes a word as one step of the history and outlines what changed.
 * @param name - of the step
 * @param resolution - width in bits that the sheet gets with it
 */
export function writeWord(word: ChangedWord, value: bigint, name: string, resolution?: number): void {
  const { id, int } = useSheetStore.getState();
  withCause({ kind: 'command', word, name }, () =>
    inOneStep(() => {
      const sheet = useSheetStore.getState();
      if (resolution !== undefined) sheet.setIntResolution(resolution);
      sheet.updateWord(word.index, word.bits, value);
      if (resolution !== undefined) sheet.focus(word.type, word.bits, word.index);
    }),
  );
  showChange(id, int.value ^ useSheetStore.getState().int.value, word);
}
