import { expect, test } from 'vitest';
import { newDocumentText, readDocument } from './document';
import { documentText, sheetText } from './testing';

test.each([
  ['nothing', '', 'empty'],
  ['blanks', ' \n\t\n', 'empty'],
  ['no JSON', '{"tool": "words"', 'is not valid JSON'],
  [
    'the marks of a merge',
    '{\n<<<<<<< ours\n  "a": 1\n=======\n  "a": 2\n>>>>>>> theirs\n}\n',
    'holds the marks of an unresolved merge',
  ],
  ['other JSON', '{"compilerOptions": {}}', 'is JSON, but not a Words document'],
  ['JSON null', 'null', 'is JSON, but not a Words document'],
  [
    'a sheet of 24 bits',
    documentText(sheetText({ intResolution: 24 })),
    'is a Words document with sheets that cannot be read',
  ],
  [
    'a value that is none',
    documentText(sheetText({ int: '0xZZ' })),
    'is a Words document with a value that is not an integer',
  ],
])('a file with %s is not shown, and the user is told why', (_, text, problem) => {
  expect(readDocument(text)).toEqual(problem === 'empty' ? { kind: 'empty' } : { kind: 'other', problem });
});

test('a document is read as the page shows it: signs, rows and converters have their defaults', () => {
  const reading = readDocument(documentText(sheetText({ int: 31, signMap: { '0:64': true }, converters: ['A2'] })));
  expect(reading).toMatchObject({ kind: 'words', shown: { sheets: [{ id: 'one', int: '0x1f', signMap: {} }] } });
  expect(JSON.stringify(reading)).not.toContain('converters');
});

test('a new document has one sheet of 64 bits', () => {
  expect(readDocument(newDocumentText())).toMatchObject({
    kind: 'words',
    shown: { sheets: [{ displayName: 'Number A', int: '0x0', intResolution: 64 }] },
  });
});
