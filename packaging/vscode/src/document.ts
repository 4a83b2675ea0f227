import type { WordsDocumentData } from '../../../web/src/document/schema';
import { sheetFromData } from '../../../web/src/document/sheetFromData';
import { isToolDocumentHeader, isWordsDocument, WordsDocument } from '../../../web/src/document/wordsDocument';
import { type BitsSheet, createSheet } from '../../../web/src/model/sheet/bitsSheet';

/** What a text is for the Words editor. */
export type DocumentReading =
  | { kind: 'empty' }
  /** `shown` is what the page makes of the text, as it would post it: signs, rows and converters with their defaults. */
  | { kind: 'words'; shown: WordsDocumentData }
  /** `problem` completes a sentence that begins with the file's name. */
  | { kind: 'other'; problem: string };

const CONFLICT = /^<{7} [^]*^={7}$[^]*^>{7} /m;

export function readDocument(text: string): DocumentReading {
  if (text.trim() === '') return { kind: 'empty' };
  const parsed = parse(text);
  if (!parsed) return other(CONFLICT.test(text) ? 'holds the marks of an unresolved merge' : 'is not valid JSON');
  if (!isToolDocumentHeader(parsed.value)) return other('is JSON, but not a Words document');
  if (!isWordsDocument(parsed.value)) return other('is a Words document with sheets that cannot be read');
  try {
    return { kind: 'words', shown: dataOf(parsed.value.sheets.map((sheet) => sheetFromData(sheet))) };
  } catch {
    return other('is a Words document with a value that is not an integer');
  }
}

/** A document with one new sheet, as a text. */
export function newDocumentText(): string {
  return documentTextOf(createSheet('Number A'));
}

/** The text of a document with one sheet. */
export function documentTextOf(sheet: BitsSheet): string {
  return printDocument(dataOf([sheet]));
}

/** A document as the text of its file. */
export function printDocument(data: WordsDocumentData): string {
  return WordsDocument.fromData(data).toFileData();
}

function dataOf(sheets: readonly BitsSheet[]): WordsDocumentData {
  const document = new WordsDocument();
  document.addSheets(sheets);
  return document.toData();
}

function other(problem: string): DocumentReading {
  return { kind: 'other', problem };
}

/** Boxed, because null is a valid JSON text. */
function parse(text: string): { value: unknown } | undefined {
  try {
    return { value: JSON.parse(text) };
  } catch {
    return undefined;
  }
}
