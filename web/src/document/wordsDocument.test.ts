import { describe, expect, test } from 'vitest';
import { sheetOf } from '../model/sheet/bitsSheet';
import { definitionsFor } from '../model/sheet/numberDefinitions';
import { documentData, documentText, sheetData } from '../testing/documents';
import type { WordsDocumentData } from './schema';
import { isToolDocumentHeader, isWordsDocument, WordsDocument } from './wordsDocument';

describe('isToolDocumentHeader', () => {
  test.each([
    ['version 1', { tool: 'words', version: 1 }, true],
    ['a later version', { tool: 'words', version: 987654321 }, true],
    ['unknown keys', { tool: 'words', version: 1, more: [] }, true],
    ['no version', { tool: 'words' }, false],
    ['version 0', { tool: 'words', version: 0 }, false],
    ['a negative version', { tool: 'words', version: -1 }, false],
    ['a fractional version', { tool: 'words', version: 1.5 }, false],
    ['a version as text', { tool: 'words', version: '1' }, false],
    ['an endless version', { tool: 'words', version: Infinity }, false],
    ['another tool', { tool: 'pictures', version: 1 }, false],
    ['another letter case', { tool: 'Words', version: 1 }, false],
    ['null', null, false],
    ['a list', [], false],
  ])('%s', (_, value, expected) => {
    expect(isToolDocumentHeader(value)).toBe(expected);
  });
});

describe('isWordsDocument', () => {
  test.each([8, 16, 32, 64, 128, 256, 512, 1024])('accepts a width of %i bits', (intResolution) => {
    expect(isWordsDocument(documentData({ sheets: [sheetData({ intResolution })] }))).toBe(true);
  });

  test.each([
    ['no sheet', []],
    ['an integer as number', [sheetData({ int: 31 })]],
    ['an integer beyond the safe ones', [sheetData({ int: 1e300 })]],
    ['text that only the conversion will refuse', [sheetData({ int: '0xZZ' })]],
    ['no sign map', [sheetData({ signMap: undefined })]],
    ['signs', [sheetData({ signMap: { '0:64': true, '7:8': false } })]],
    ['a definition of any width', [sheetData({ numberDefinitions: [{ type: 'float', bits: 1.5, visible: false }] })]],
    ['no definition', [sheetData({ numberDefinitions: [] })]],
    ['any converters', [sheetData({ converters: ['A2', 'nonsense', ''] })]],
    ['unknown keys', [sheetData({ remark: { deep: [1] } })]],
    ['empty texts', [sheetData({ id: '', displayName: '' })]],
    ['one identifier twice', [sheetData(), sheetData()]],
  ])('accepts %s', (_, sheets) => {
    expect(isWordsDocument(documentData({ sheets }))).toBe(true);
  });

  test.each([
    ['missing sheets', undefined],
    ['sheets that are no list', {}],
    ['a width that is not offered', [sheetData({ intResolution: 24 })]],
    ['a width as text', [sheetData({ intResolution: '64' })]],
    ['missing definitions', [sheetData({ numberDefinitions: undefined })]],
    ['an unknown type', [sheetData({ numberDefinitions: [{ type: 'text', bits: 8, visible: true }] })]],
    ['a visibility that is no boolean', [sheetData({ numberDefinitions: [{ type: 'float', bits: 8, visible: 1 }] })]],
    ['a sign that is no boolean', [sheetData({ signMap: { '0:64': 'yes' } })]],
    ['signs as a list', [sheetData({ signMap: [true] })]],
    ['a hidden sign that is no boolean', [sheetData({ signMap: JSON.parse('{"__proto__": 1}') })]],
    ['a fractional integer', [sheetData({ int: 1.5 })]],
    ['an endless integer', [sheetData({ int: JSON.parse('1e999') })]],
    ['a missing integer', [sheetData({ int: undefined })]],
    ['null for the signs', [sheetData({ signMap: null })]],
    ['converters that are no texts', [sheetData({ converters: [2] })]],
    ['an identifier that is no text', [sheetData({ id: 1 })]],
    ['a missing name', [sheetData({ displayName: undefined })]],
    ['one bad sheet among good ones', [sheetData(), null, sheetData()]],
    ['a hole in the list of sheets', Object.assign([sheetData()], { 2: sheetData() })],
    ['a hole in the list of definitions', [sheetData({ numberDefinitions: new Array(1) })]],
  ])('refuses %s', (_, sheets) => {
    expect(isWordsDocument(documentData({ sheets }))).toBe(false);
  });
});

describe('WordsDocument', () => {
  const sheet = sheetOf({ id: 'one', displayName: 'Number A', int: 255n, intResolution: 64 });

  test('is empty, of version 1 and for the Words tool by default', () => {
    expect(new WordsDocument().toData()).toEqual({ tool: 'words', version: 1, sheets: [] });
  });

  test('refuses another tool', () => {
    expect(() => new WordsDocument(1, 'pictures')).toThrow(new Error('Invalid tool for WordsDocument: pictures'));
  });

  test('writes keys in their order, indented by two spaces', () => {
    const document = new WordsDocument();
    document.addSheet(sheetOf({ ...sheet, intResolution: 8 }).with({ converters: ['A16'] }));
    expect(document.toFileData()).toBe(
      [
        '{',
        '  "tool": "words",',
        '  "version": 1,',
        '  "sheets": [',
        '    {',
        '      "id": "one",',
        '      "displayName": "Number A",',
        '      "int": "0xff",',
        '      "intResolution": 8,',
        '      "signMap": {},',
        '      "numberDefinitions": [',
        '        {',
        '          "type": "integer",',
        '          "bits": 8,',
        '          "visible": true',
        '        },',
        '        {',
        '          "type": "color32",',
        '          "bits": 32,',
        '          "visible": true',
        '        }',
        '      ],',
        '      "converters": [',
        '        "A16"',
        '      ]',
        '    }',
        '  ]',
        '}',
      ].join('\n'),
    );
  });

  test('keeps sheets in order, zero as 0x0, every sign, and no key for absent converters', () => {
    const document = new WordsDocument();
    document.addSheets([
      sheet.with({ int: 0n, signMap: new Map(Object.entries({ '0:64': true, '9:8': false })) }),
      sheetOf({ ...sheet, id: 'two' }).with({ converters: [] }),
    ]);
    const [first, second] = document.toData().sheets;
    expect(first).toMatchObject({ id: 'one', int: '0x0', signMap: { '0:64': true, '9:8': false } });
    expect(first).not.toHaveProperty('converters');
    expect(second).toMatchObject({ id: 'two', converters: [] });
  });

  test('copies the definitions, so that later changes of the sheet do not reach the document', () => {
    const numberDefinitions = definitionsFor(64).map((definition) => ({ ...definition }));
    const document = new WordsDocument();
    document.addSheet(sheet.with({ numberDefinitions }));
    numberDefinitions[0]!.visible = false;
    expect(document.toData().sheets[0]!.numberDefinitions[0]!.visible).toBe(true);
  });

  test('escapes U+007F and lone surrogates, and reads them back', () => {
    const displayName = 'del \u007f, half \ud800, end \u2028';
    const document = new WordsDocument();
    document.addSheet(sheet.with({ displayName }));
    const text = document.toFileData();
    expect(text).toContain('del \\u007f, half \\ud800');
    expect(text).not.toContain('\u007f');
    expect(WordsDocument.fromFileData(text).sheets[0]!.displayName).toBe(displayName);
  });

  test('reads what it wrote and keeps a later version', () => {
    const data = documentData({ version: 2 });
    expect(WordsDocument.fromFileData(documentText({ version: 2 })).toData()).toEqual(data);
    expect(WordsDocument.fromData(data as WordsDocumentData).version).toBe(2);
  });

  test.each([
    ['no JSON', '{', 'Failed to parse Words document data'],
    ['the empty text', '', 'Failed to parse Words document data'],
    ['another structure', '{"tool":"words","version":1}', 'Invalid Words document data structure'],
  ])('fromFileData refuses %s', (_, text, message) => {
    expect(() => WordsDocument.fromFileData(text)).toThrow(new Error(message));
  });
});
