import { useDeferredValue } from 'react';
import { readWord } from '../../../model/integer/wordLayout';
import { useSheetStore } from '../../../stores/sheetStore';

/**
 * A word of the sheet that is shown. Words out of view follow when those in view are shown.
 * @param bits - width of the word
 * @param index - counted from 0 at the least significant end
 */
export function useWord(bits: number, index: number, isInView: boolean): bigint {
  const word = useSheetStore((sheet) => readWord(sheet.int.value, bits, index));
  const later = useDeferredValue(isInView ? undefined : word);
  return isInView ? word : (later ?? word);
}
