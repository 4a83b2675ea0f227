import { nanoid } from 'nanoid';
import { definitionsFor, type NumberDefinition, type NumberType } from './numberDefinitions';
import { DEFAULT_RESOLUTION } from './resolutions';
import { ScrollMap } from './scrollMap';
import type { SignMap } from './signMap';

/** The word that has the focus; three nulls for none. */
export type FocusedBlock = readonly [type: NumberType, bits: number, index: number] | readonly [null, null, null];

export interface BitsSheetFields {
  readonly id: string;
  /** Title of the tab. */
  readonly displayName: string;
  /** The value as stored; it may be wider than the resolution until the sheet's first edit. */
  readonly int: bigint;
  /** Width in bits. */
  readonly intResolution: number;
  readonly focusedBlock: FocusedBlock;
  readonly signMap: SignMap;
  readonly scrollMap: ScrollMap;
  readonly numberDefinitions: readonly NumberDefinition[];
  /** Identifiers of the extra fields below each word; absent means the default ones. */
  readonly converters: readonly string[] | undefined;
  readonly flagOptions: readonly string[];
}

/** What can change in a sheet; its identifier cannot. */
export type SheetChanges = Partial<Omit<BitsSheetFields, 'id'>>;

/** Whether documents hold a field, or only the record of this visit does. */
const HOLDERS: Readonly<Record<keyof SheetChanges, 'document' | 'record'>> = {
  displayName: 'document',
  int: 'document',
  intResolution: 'document',
  focusedBlock: 'record',
  signMap: 'document',
  scrollMap: 'record',
  numberDefinitions: 'document',
  converters: 'document',
  flagOptions: 'record',
};

/** The fields that can change. */
export const SHEET_FIELDS = Object.keys(HOLDERS) as readonly (keyof SheetChanges)[];

/** Those that documents hold. */
export const DOCUMENT_FIELDS = SHEET_FIELDS.filter((field) => HOLDERS[field] === 'document');

/** Whether a change touches what documents hold. */
export function isDocumentChange(changes: SheetChanges): boolean {
  return DOCUMENT_FIELDS.some((field) => field in changes);
}

// A class of its own, so that the record of the open document can name it, with the fields that the interface lists.
const WithFields = function (this: object, fields: BitsSheetFields) {
  Object.assign(this, fields);
} as unknown as new (fields: BitsSheetFields) => BitsSheetFields;

/** One sheet. It never changes: an edit puts a new sheet with the same `id` into the store. */
export class BitsSheet extends WithFields {
  /** This sheet with some fields changed. */
  with(changes: SheetChanges): BitsSheet {
    return new BitsSheet({ ...this, ...changes });
  }

  /** This sheet without the bits of its value that are beyond its width. */
  withinResolution(): BitsSheet {
    const int = BigInt.asUintN(this.intResolution, this.int);
    return int === this.int ? this : this.with({ int });
  }
}

/** An identifier that no other sheet has: 21 URL-safe characters. */
export function newSheetId(): string {
  return nanoid();
}

/** A new sheet: value 0, the default width, every word unsigned, the widest word focused. */
export function createSheet(displayName: string): BitsSheet {
  const sheet = sheetOf({ id: newSheetId(), displayName, int: 0n, intResolution: DEFAULT_RESOLUTION });
  return sheet.with({ focusedBlock: ['integer', DEFAULT_RESOLUTION, 0] });
}

/** A sheet with a given value and otherwise the defaults for its width. */
export function sheetOf(given: Pick<BitsSheetFields, 'id' | 'displayName' | 'int' | 'intResolution'>): BitsSheet {
  return new BitsSheet({
    ...given,
    focusedBlock: [null, null, null],
    signMap: new Map(),
    scrollMap: ScrollMap.empty,
    numberDefinitions: definitionsFor(given.intResolution),
    converters: undefined,
    flagOptions: [],
  });
}
