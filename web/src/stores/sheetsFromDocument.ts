import type { Loading } from '../document/loading';
import type { WordsDocumentData } from '../document/schema';
import { sheetFromData } from '../document/sheetFromData';
import { type BitsSheet, newSheetId } from '../model/sheet/bitsSheet';

/**
 * Makes the sheets of a document, in its order. A sheet whose identifier an earlier one has already gets a fresh one.
 * Rejects with the conversion's own message when an integer cannot be read.
 */
export async function sheetsFromDocument(data: WordsDocumentData, loading: Loading): Promise<Map<string, BitsSheet>> {
  const sheets = new Map<string, BitsSheet>();
  await loading.visitAll(data.sheets, 0.5, 1, (sheet) => {
    const id = sheets.has(sheet.id) ? newSheetId() : sheet.id;
    sheets.set(id, sheetFromData(sheet, id));
  });
  return sheets;
}
