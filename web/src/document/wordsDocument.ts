import cloneDeep from 'lodash.clonedeep';
import { writeDocumentInt } from '../model/integer/documentInt';
import type { BitsSheet } from '../model/sheet/bitsSheet';
import { schemas, type SheetData, type Tool, type WordsDocumentData } from './schema';

const CURRENT_VERSION = 1;

/** Whether a value starts as a tool document does: a known tool and a version of 1 or more. */
export function isToolDocumentHeader(value: unknown): value is { tool: Tool; version: number } {
  return schemas().header.safeParse(value).success;
}

/** Whether a value is a whole sheet as documents hold it. */
export function isSheetData(value: unknown): value is SheetData {
  return schemas().sheet.safeParse(value).success;
}

/** Whether a value is a whole Words document. Keys that are not known are allowed. */
export function isWordsDocument(value: unknown): value is WordsDocumentData {
  const sheets = isToolDocumentHeader(value) && (value as { sheets?: unknown }).sheets;
  // Not with `every`, which does not look at the holes that a list handed over by another program can have.
  return Array.isArray(sheets) && sheets.findIndex((sheet) => !isSheetData(sheet)) === -1;
}

/** All sheets of the Words tool in the form that is saved. */
export class WordsDocument {
  readonly version: number;
  readonly tool: Tool;
  readonly sheets: SheetData[];

  /** Throws for a tool other than "words". */
  constructor(version: number = CURRENT_VERSION, tool: string = 'words', sheets: SheetData[] = []) {
    if (tool !== 'words') throw new Error(`Invalid tool for WordsDocument: ${tool}`);
    this.version = version;
    this.tool = tool;
    this.sheets = sheets;
  }

  /** Builds one from an object that `isWordsDocument` accepted. */
  static fromData(data: WordsDocumentData): WordsDocument {
    return new WordsDocument(data.version, data.tool, data.sheets);
  }

  /** Reads JSON text. Throws when it is not JSON or not a Words document. */
  static fromFileData(text: string): WordsDocument {
    const data = parseJson(text);
    if (!isWordsDocument(data)) throw new Error('Invalid Words document data structure');
    return WordsDocument.fromData(data);
  }

  addSheet(sheet: BitsSheet): void {
    this.sheets.push(sheetDataOf(sheet));
  }

  addSheets(sheets: Iterable<BitsSheet>): void {
    for (const sheet of sheets) this.addSheet(sheet);
  }

  toData(): WordsDocumentData {
    return { tool: this.tool, version: this.version, sheets: this.sheets };
  }

  /**
   * The text of the file, indented by two spaces.
   * U+007F is escaped: JSON leaves it as it is, but the native window loses a call whose text holds it.
   */
  toFileData(): string {
    return JSON.stringify(this.toData(), null, 2).replaceAll('\u007f', '\\u007f');
  }
}

function parseJson(text: string): unknown {
  try {
    return JSON.parse(text);
  } catch {
    throw new Error('Failed to parse Words document data');
  }
}

/** The order of the keys is the order in the file. */
function sheetDataOf(sheet: BitsSheet): SheetData {
  return {
    id: sheet.id,
    displayName: sheet.displayName,
    int: writeDocumentInt(sheet.int, sheet.intResolution),
    intResolution: sheet.intResolution as SheetData['intResolution'],
    signMap: Object.fromEntries(sheet.signMap),
    numberDefinitions: cloneDeep([...sheet.numberDefinitions]),
    ...(sheet.converters && { converters: cloneDeep([...sheet.converters]) }),
  };
}
