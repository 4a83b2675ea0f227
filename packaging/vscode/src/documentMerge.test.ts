import { expect, test } from 'vitest';
import type { SheetData, WordsDocumentData } from '../../../web/src/document/schema';
import { merged } from './documentMerge';

const sheet = (id: string, changes: Partial<SheetData> = {}): SheetData => ({
  id,
  displayName: id,
  int: '0x0',
  intResolution: 64,
  numberDefinitions: [],
  ...changes,
});
const data = (...sheets: SheetData[]): WordsDocumentData => ({ tool: 'words', version: 1, sheets });
const base = data(sheet('a'), sheet('b'));

test.each([
  [
    'edits of different sheets',
    data(sheet('a', { int: '0x1' }), sheet('b')),
    data(sheet('a'), sheet('b', { int: '0x2' })),
    data(sheet('a', { int: '0x1' }), sheet('b', { int: '0x2' })),
  ],
  [
    'edits of different fields',
    data(sheet('a', { int: '0x1' }), sheet('b')),
    data(sheet('a', { displayName: 'A' }), sheet('b')),
    data(sheet('a', { int: '0x1', displayName: 'A' }), sheet('b')),
  ],
  [
    'edits of the same field: ours',
    data(sheet('a', { int: '0x1' }), sheet('b')),
    data(sheet('a', { int: '0x2' }), sheet('b')),
    data(sheet('a', { int: '0x1' }), sheet('b')),
  ],
  [
    'sheets added by both',
    data(sheet('a'), sheet('b'), sheet('c')),
    data(sheet('d'), sheet('a'), sheet('b')),
    data(sheet('a'), sheet('b'), sheet('c'), sheet('d')),
  ],
  ['sheets removed by both', data(sheet('a')), data(sheet('b')), data()],
  [
    'a removed sheet that the other one changed',
    data(sheet('b')),
    data(sheet('a', { int: '0x2' }), sheet('b')),
    data(sheet('b'), sheet('a', { int: '0x2' })),
  ],
  [
    'our order',
    data(sheet('b'), sheet('a')),
    data(sheet('a', { int: '0x2' }), sheet('b')),
    data(sheet('b'), sheet('a', { int: '0x2' })),
  ],
  [
    'their order',
    data(sheet('a', { int: '0x1' }), sheet('b')),
    data(sheet('b'), sheet('a')),
    data(sheet('b'), sheet('a', { int: '0x1' })),
  ],
  [
    'ours where ids are not unique',
    data(sheet('a'), sheet('a')),
    data(sheet('a', { int: '0x2' }), sheet('b')),
    data(sheet('a'), sheet('a')),
  ],
])('a merged document has %s', (_, ours, theirs, both) => {
  expect(merged(base, ours, theirs)).toEqual(both);
});
