import { expect, test } from 'vitest';
import {
  BitsSheet,
  createSheet,
  DOCUMENT_FIELDS,
  isDocumentChange,
  newSheetId,
  SHEET_FIELDS,
  sheetOf,
} from './bitsSheet';
import { ScrollMap } from './scrollMap';

const narrow = sheetOf({ id: 'a', displayName: 'A', int: 0x1_dead_beefn, intResolution: 32 });

test('a new sheet is an unsigned zero whose widest word has the focus', () => {
  const sheet = createSheet('New');
  expect(sheet).toMatchObject({ displayName: 'New', int: 0n, focusedBlock: ['integer', sheet.intResolution, 0] });
  expect(sheet.signMap.size).toBe(0);
});

test('a sheet with a given value focuses no word and has the rows of its width', () => {
  expect(narrow.focusedBlock).toEqual([null, null, null]);
  expect(Math.max(...narrow.numberDefinitions.map(({ bits }) => bits))).toBe(32);
});

test('an edit gives another sheet of the same class, and the one before stays', () => {
  const edited = narrow.with({ int: 7n });
  expect(edited).toBeInstanceOf(BitsSheet);
  expect(edited).toEqual(Object.assign(Object.create(BitsSheet.prototype), narrow, { int: 7n }));
  expect(narrow.int).toBe(0x1_dead_beefn);
});

test('bits beyond the width are cut, and a sheet without any stays itself', () => {
  const cut = narrow.withinResolution();
  expect(cut.int).toBe(0xdead_beefn);
  expect(cut.withinResolution()).toBe(cut);
});

test('what is scrolled or focused changes no document, everything else does', () => {
  expect(isDocumentChange({ scrollMap: ScrollMap.empty, focusedBlock: [null, null, null], flagOptions: [] })).toBe(
    false,
  );
  for (const field of DOCUMENT_FIELDS) expect(isDocumentChange({ flagOptions: [], [field]: narrow[field] })).toBe(true);
  expect(SHEET_FIELDS.filter((field) => !DOCUMENT_FIELDS.includes(field))).toEqual([
    'focusedBlock',
    'scrollMap',
    'flagOptions',
  ]);
});

test('identifiers differ and can stand in an address', () => {
  const ids = Array.from({ length: 100 }, newSheetId);
  expect(new Set(ids).size).toBe(100);
  for (const id of ids) expect(id).toMatch(/^[\w-]{21}$/);
});
