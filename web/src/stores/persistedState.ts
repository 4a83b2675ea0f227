import SuperJSON from 'superjson';
import { BitInt } from '../model/integer/bitInt';
import { BitsSheet, type BitsSheetFields } from '../model/sheet/bitsSheet';
import { ScrollMap } from '../model/sheet/scrollMap';
import type { SheetsState } from './sheetsState';

export const RECORD_VERSION = 1;

/** What is kept between visits. */
export type PersistedState = Pick<SheetsState, 'sheets' | 'activeSheetKey' | 'documentFile' | 'isUnsaved'>;

const BROKEN = 'Invalid JSON format for BitInt';

const superjson = new SuperJSON();
superjson.registerCustom<BitInt, string>(
  {
    isApplicable: (value): value is BitInt => value instanceof BitInt,
    serialize: ({ value, resolution }) => superjson.stringify({ value, resolution }),
    deserialize: (text) => readBitInt(superjson.parse(text)),
  },
  'bitint',
);
superjson.registerCustom<ScrollMap, string>(
  {
    isApplicable: (value): value is ScrollMap => value instanceof ScrollMap,
    serialize: ({ rows, vertical }) => superjson.stringify({ rows, vertical }),
    deserialize: (text) => readScrollMap(superjson.parse(text)),
  },
  'scrollmap',
);
superjson.registerCustom<BitsSheet, string>(
  {
    isApplicable: (value): value is BitsSheet => value instanceof BitsSheet,
    serialize: sheetText,
    deserialize: (text) => readSheet(superjson.parse(text)),
  },
  'bitssheet',
);

/** Sheets never change, so each is written once; an edit costs the text of one sheet, not of all. */
const sheetTexts = new WeakMap<BitsSheet, string>();

function sheetText(sheet: BitsSheet): string {
  const known = sheetTexts.get(sheet);
  if (known !== undefined) return known;
  const text = superjson.stringify({ ...sheet });
  sheetTexts.set(sheet, text);
  return text;
}

/** The text of the record. A browser's right to a file cannot be written down and is left out. */
export function writeRecord(state: PersistedState): string {
  const { documentFile } = state;
  const file = documentFile && {
    name: documentFile.name,
    ...(documentFile.path !== undefined && { path: documentFile.path }),
  };
  return superjson.stringify({ state: { ...state, documentFile: file }, version: RECORD_VERSION });
}

/** Reads a record's text. Throws when it is broken, of another version or not a record at all. */
export function readRecord(text: string): PersistedState {
  const record = superjson.parse<{ state?: Partial<Record<keyof PersistedState, unknown>>; version?: unknown } | null>(
    text,
  );
  const state = record?.state;
  if (record?.version !== RECORD_VERSION || !state) throw new Error('Not a record of this version');
  const { sheets, activeSheetKey, documentFile, isUnsaved } = state;
  if (!areSheets(sheets)) throw new Error('The record holds no sheets');
  if (!isFileOrNull(documentFile)) throw new Error('The record holds no file');
  const last = [...sheets.keys()].at(-1) ?? null;
  return {
    sheets,
    activeSheetKey: typeof activeSheetKey === 'string' && sheets.has(activeSheetKey) ? activeSheetKey : last,
    documentFile,
    isUnsaved: isUnsaved === true,
  };
}

function areSheets(sheets: unknown): sheets is ReadonlyMap<string, BitsSheet> {
  return sheets instanceof Map && [...sheets.values()].every((sheet) => sheet instanceof BitsSheet);
}

function isFileOrNull(file: unknown): file is PersistedState['documentFile'] {
  if (file === null) return true;
  if (typeof file !== 'object') return false;
  const { name, path } = file as Record<string, unknown>;
  return typeof name === 'string' && (path === undefined || typeof path === 'string');
}

function readBitInt(fields: unknown): BitInt {
  const { value, resolution } = fields as Record<string, unknown>;
  if (typeof value !== 'bigint' || typeof resolution !== 'number') throw new Error(BROKEN);
  return new BitInt(value, resolution);
}

function readScrollMap(fields: unknown): ScrollMap {
  const { rows, vertical } = fields as Record<string, unknown>;
  const isUsable = rows instanceof Map && (vertical === undefined || typeof vertical === 'number');
  return isUsable ? new ScrollMap(rows, vertical) : ScrollMap.empty;
}

function readSheet(raw: unknown): BitsSheet {
  const fields = raw as Partial<Record<keyof BitsSheetFields, unknown>>;
  const isComplete =
    typeof fields.id === 'string' &&
    typeof fields.displayName === 'string' &&
    typeof fields.int === 'bigint' &&
    typeof fields.intResolution === 'number' &&
    Array.isArray(fields.focusedBlock) &&
    fields.focusedBlock.length === 3;
  if (!isComplete) throw new Error(BROKEN);
  return new BitsSheet({
    ...(fields as BitsSheetFields),
    signMap: fields.signMap instanceof Map ? fields.signMap : new Map(),
    scrollMap: fields.scrollMap instanceof ScrollMap ? fields.scrollMap : ScrollMap.empty,
    numberDefinitions: Array.isArray(fields.numberDefinitions) ? fields.numberDefinitions : [],
    converters: Array.isArray(fields.converters) ? fields.converters : undefined,
    flagOptions: Array.isArray(fields.flagOptions) ? fields.flagOptions : [],
  });
}
