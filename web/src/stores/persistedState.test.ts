import SuperJSON from 'superjson';
import { describe, expect, test } from 'vitest';
import { BitInt } from '../model/integer/bitInt';
import { createSheet, sheetOf } from '../model/sheet/bitsSheet';
import { definitionsFor, withVisibility } from '../model/sheet/numberDefinitions';
import { ScrollMap } from '../model/sheet/scrollMap';
import { type PersistedState, readRecord, writeRecord } from './persistedState';

const sheet = sheetOf({
  id: 'one',
  displayName: 'Ünïcode \u0000\u007f\ud800 漢字',
  int: 2n ** 1023n,
  intResolution: 1024,
}).with({
  focusedBlock: ['color32', 32, 5],
  signMap: new Map(Object.entries({ '0:1024': true, '9:8': false, __proto__x: true })),
  scrollMap: ScrollMap.empty.withRow('integer:8', 120.5).withVertical(33),
  numberDefinitions: withVisibility(definitionsFor(1024), { type: 'integer', bits: 8 }, false),
  converters: ['A2', 'FLOAT'],
  flagOptions: ['scroll-lock-horizontal'],
});
const state: PersistedState = {
  sheets: new Map([
    ['one', sheet],
    ['__proto__', sheetOf({ id: '__proto__', displayName: '', int: -5n, intResolution: 8 })],
  ]),
  activeSheetKey: 'one',
  documentFile: { name: 'a.tessary', path: '/a.tessary' },
  isUnsaved: true,
};
/** What the JSON of the record looks like, as far as the tests reach into it. */
interface RecordJson {
  json: { version: unknown; state: { sheets: unknown; documentFile: unknown } };
}
type SheetJson = Record<'id' | 'displayName' | 'intResolution', unknown> & { focusedBlock: unknown[] };

/** The record's text after a change to what its JSON holds. */
const altered = (change: (record: RecordJson) => void) => {
  const record = JSON.parse(writeRecord(state));
  change(record);
  return JSON.stringify(record);
};
const sheetEntry = (record: RecordJson) => (record.json.state.sheets as [string, string][])[0]!;
const alteredSheet = (change: (fields: SheetJson) => void) =>
  altered((record) => {
    const inner = JSON.parse(sheetEntry(record)[1]);
    change(inner.json);
    sheetEntry(record)[1] = JSON.stringify(inner);
  });

describe('the record', () => {
  test('brings back everything of every sheet', () => {
    expect(readRecord(writeRecord(state))).toEqual(state);
  });

  test('is a text of version 1 whose sheets are texts of their own', () => {
    const record = JSON.parse(writeRecord(state));
    expect(record.json.version).toBe(1);
    expect(typeof record.json.state.sheets[0][1]).toBe('string');
    expect(writeRecord(state)).toContain('"bitssheet"');
    expect(writeRecord(state)).toContain('scrollmap');
  });

  test('leaves out the right to a file, which cannot be written down', () => {
    const handle = { kind: 'file' } as FileSystemFileHandle;
    const text = writeRecord({ ...state, documentFile: { name: 'a.tessary', handle } });
    expect(readRecord(text).documentFile).toEqual({ name: 'a.tessary' });
  });

  test('keeps absent converters apart from none', () => {
    const sheets = new Map([undefined, []].map((converters, at) => [`${at}`, createSheet('A').with({ converters })]));
    const read = readRecord(writeRecord({ ...state, sheets })).sheets;
    expect([...read.values()].map(({ converters }) => converters)).toEqual([undefined, []]);
  });

  test('shows the last sheet when the one that was shown is gone', () => {
    expect(readRecord(writeRecord({ ...state, activeSheetKey: 'gone' })).activeSheetKey).toBe('__proto__');
  });

  test.each([
    ['an identifier that is no text', alteredSheet((fields) => (fields.id = 1))],
    ['a name that is no text', alteredSheet((fields) => (fields.displayName = null))],
    ['a width that is no number', alteredSheet((fields) => (fields.intResolution = '64'))],
    ['a focus that is no triple', alteredSheet((fields) => fields.focusedBlock.pop())],
  ])('refuses a sheet with %s', (_, text) => {
    expect(() => readRecord(text)).toThrow('Invalid JSON format for BitInt');
  });

  test('refuses a sheet whose value is no big integer', () => {
    const broken = new SuperJSON().stringify({ ...sheet, int: 5, scrollMap: null });
    expect(() => readRecord(altered((record) => (sheetEntry(record)[1] = broken)))).toThrow(
      'Invalid JSON format for BitInt',
    );
  });

  test.each([
    ['no JSON', '{'],
    ['null', 'null'],
    ['another shape', '{"json":{"hello":1}}'],
    ['another version', altered((record) => (record.json.version = 2))],
    ['no sheets', altered((record) => (record.json.state.sheets = 5))],
    ['a file without a name', altered((record) => (record.json.state.documentFile = { path: '/a' }))],
  ])('refuses %s', (_, text) => {
    expect(() => readRecord(text)).toThrow();
  });
});

test('a value with its width has a text of its own', () => {
  const box = new Map([['value', new BitInt(5n, 8)]]) as unknown as PersistedState['sheets'];
  const text = writeRecord({ ...state, sheets: box });
  expect(text).toContain('"bitint"');
  expect(() => readRecord(text)).toThrow('The record holds no sheets');
});
