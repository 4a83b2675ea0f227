import { readDocumentInt } from '../model/integer/documentInt';
import { type BitsSheet, sheetOf } from '../model/sheet/bitsSheet';
import type { SheetData } from './schema';

/**
 * Makes the sheet that a document's data stand for. Only name, value and width are taken over: signs, rows and
 * converters start with their defaults.
 * Throws as the conversion does when the integer cannot be read.
 * @param id - another identifier than the one in the data
 */
export function sheetFromData({ id: ownId, displayName, int, intResolution }: SheetData, id = ownId): BitsSheet {
  return sheetOf({ id, displayName, int: readDocumentInt(int), intResolution });
}
