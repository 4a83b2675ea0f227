import { i18next } from '../i18n';
import { type BitRange, holds, rangeMask, rangeWidth, readRange, writtenRange } from '../model/range/bitRange';
import { definitionLabel } from '../model/sheet/numberDefinitions';
import { useSheetStore } from '../stores/sheetStore';
import { briefMessage } from '../ui/briefMessage';
import { focusedWord } from './focusedWord';

/** What a range of the sheet that is shown holds: "[23:12] 12 bits = 0x3AB = 939, signed 939, mask 0x00FFF000". */
export function rangeReading(range: BitRange): string {
  const { int } = useSheetStore.getState();
  const width = rangeWidth(range);
  const value = readRange(int.value, range);
  const reading = i18next.t('ranges.read', {
    count: width,
    range: [writtenRange(range), ...inFocusedWord(range)].join(', '),
    hex: hexOf(value, 0),
    value: `${value}`,
    signed: `${BigInt.asIntN(width, value)}`,
    mask: hexOf(rangeMask(range), int.resolution / 4),
  });
  return briefMessage(reading);
}

export function hexOf(value: bigint, digits: number): string {
  return `0x${value.toString(16).toUpperCase().padStart(digits, '0')}`;
}

/** The range as the focused word counts its bits, where that is another way. */
function inFocusedWord(range: BitRange): string[] {
  const word = focusedWord();
  const start = word ? word.bits * word.index : 0;
  if (!word || start === 0 || !holds({ hi: start + word.bits - 1, lo: start }, range)) return [];
  const own = { hi: range.hi - start, lo: range.lo - start };
  const name = i18next.t('words.block', { row: definitionLabel(word), number: word.index + 1 });
  return [i18next.t('ranges.inWord', { word: name, range: writtenRange(own) })];
}
