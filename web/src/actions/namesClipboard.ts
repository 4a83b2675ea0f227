import { i18next } from '../i18n';
import { writeNames } from '../model/range/namedRanges';
import { useSheetStore } from '../stores/sheetStore';
import { focusedWord } from './focusedWord';
import { shownNames } from './rangeNaming';
import { copyText } from './wordClipboard';

/** Puts the names of the sheet that is shown on the clipboard, a line for each. */
export function copyNames(): void {
  const names = shownNames();
  const word = focusedWord() ?? { type: 'integer', bits: useSheetStore.getState().int.resolution, index: 0 };
  void copyText(word, writeNames(names), i18next.t('ranges.copied', { count: names.length }));
}
