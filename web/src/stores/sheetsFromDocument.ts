import type { Loading } from '../document/loading';
import type { WordsDocumentData } from '../document/schema';
import { readDocumentInt } from '../model/integer/documentInt';
import { type BitsSheet, newSheetId, sheetOf } from '../model/sheet/bitsSheet';

/**
 * Makes the sheets of a document, in its order. Only name, value and width are taken over: signs, rows and converters
 * start with their defaults. A sheet whose identifier an earlier one has already gets a fresh one.
 * Rejects with the conversion's own message when an integer cannot be read.
 */
export async function sheetsFromDocument(data: WordsDocumentData, loading: Loading): Promise<Map<string, BitsSheet>> {
  const sheets = new Map<string, BitsSheet>();
  await loading.visitAll(data.sheets, 0.5, 1, ({ id: givenId, displayName, int, intResolution }) => {
    const id = sheets.has(givenId) ? newSheetId() : givenId;
    sheets.set(id, sheetOf({ id, displayName, int: readDocumentInt(int), intResolution }));
  });
  return sheets;
}
