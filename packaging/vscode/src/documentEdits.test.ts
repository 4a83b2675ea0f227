import { describe, expect, test } from 'vitest';
import type { WordsDocumentData } from '../../../web/src/document/schema';
import { newDocumentText, readDocument } from './document';
import { editsFor, withEdits } from './documentEdits';
import { documentText, sheetText } from './testing';

function shown(text: string): WordsDocumentData {
  const reading = readDocument(text);
  if (reading.kind !== 'words') throw new Error(`Not a document: ${text}`);
  return reading.shown;
}

/** The text after the page changed what it shows of it. */
function edited(text: string, change: (data: WordsDocumentData) => void): string {
  const now = structuredClone(shown(text));
  change(now);
  return withEdits(text, editsFor(text, shown(text), now));
}

/** The lines of `now` that `old` does not have in the same place. */
function changedLines(old: string, now: string): string[] {
  const before = old.split('\n');
  return now.split('\n').filter((line, at) => line !== before[at]);
}

const TWO = documentText(sheetText({ signMap: { '0:64': true } }), sheetText({ id: 'two', displayName: 'Number B' }));

describe('one bit', () => {
  test('changes the line that holds it and no other', () => {
    const now = edited(TWO, ({ sheets }) => (sheets[1]!.int = '0xfe'));
    expect(changedLines(TWO, now)).toEqual(['      "int": "0xfe",']);
    expect(now.split('\n')).toHaveLength(TWO.split('\n').length);
  });

  test('changes nothing but its digits in a document on one line', () => {
    const text = JSON.stringify(JSON.parse(TWO));
    expect(edited(text, ({ sheets }) => (sheets[0]!.int = '0x0'))).toBe(text.replace('"0xff"', '"0x0"'));
  });

  test('replaces a decimal number', () => {
    const text = documentText(sheetText({ int: 255 }));
    expect(edited(text, ({ sheets }) => (sheets[0]!.int = '0xfe'))).toBe(text.replace('255', '"0xfe"'));
  });

  test('counts in the last of keys with the same name, as it is read', () => {
    const text = TWO.replace('"int": "0xff"', '"int": "0x1", "int": "0xff"');
    expect(edited(text, ({ sheets }) => (sheets[0]!.int = '0x0'))).toBe(text.replace('"0xff"', '"0x0"'));
  });
});

test('nothing changes where the page changed nothing', () => {
  expect(editsFor(TWO, shown(TWO), shown(TWO))).toEqual([]);
});

describe('other changes', () => {
  test('a sign is written into the line that has room for signs', () => {
    const now = edited(TWO, ({ sheets }) => (sheets[1]!.signMap = { '0:32': true }));
    expect(now).toContain('"signMap": {\n        "0:32": true\n      },');
    expect(now).toContain('"signMap": {"0:64":true}');
  });

  test('converters are added where there were none', () => {
    const now = edited(TWO, ({ sheets }) => (sheets[0]!.converters = ['A2', 'FLOAT']));
    expect(JSON.parse(now)).toEqual({
      ...JSON.parse(TWO),
      sheets: [{ ...JSON.parse(TWO).sheets[0], converters: ['A2', 'FLOAT'] }, JSON.parse(TWO).sheets[1]],
    });
    expect(now).toContain('\n      "converters": [');
    expect(now).toContain('\n        "FLOAT"\n      ]');
  });

  test('a resolution and what depends on it change together', () => {
    const now = edited(TWO, ({ sheets }) => {
      sheets[0]!.intResolution = 32;
      sheets[0]!.numberDefinitions = [{ type: 'integer', bits: 32, visible: true }];
    });
    expect(shown(now).sheets[0]).toMatchObject({ intResolution: 32, int: '0xff' });
    expect(changedLines(TWO, now)).toEqual([
      '      "intResolution": 32,',
      '      "numberDefinitions": [{"type":"integer","bits":32,"visible":true}],',
    ]);
  });
});

describe('sheets', () => {
  test('a new one is added, and the others stay as they stand', () => {
    const now = edited(TWO, ({ sheets }) => sheets.push({ ...sheets[0]!, id: 'three' }));
    expect(shown(now).sheets.map(({ id }) => id)).toEqual(['one', 'two', 'three']);
    const before = TWO.slice(0, TWO.indexOf('\n  ]'));
    expect(now.startsWith(before)).toBe(true);
    expect(now.slice(before.length)).toMatch(/^,\n {4}\{\n {6}"id": "three",[^]*\n {4}\}\n {2}\]\n\}\n$/);
  });

  test('one that is closed goes with its lines', () => {
    const now = edited(TWO, ({ sheets }) => sheets.shift());
    expect(now).toBe(documentText(sheetText({ id: 'two', displayName: 'Number B' })));
  });

  test('one that is moved takes its text along, edits included', () => {
    const now = edited(TWO, ({ sheets }) => {
      sheets.reverse();
      sheets[0]!.int = '0x7';
    });
    expect(now).toBe(
      documentText(
        sheetText({ id: 'two', displayName: 'Number B', int: '0x7' }),
        sheetText({ signMap: { '0:64': true } }),
      ),
    );
  });

  test('with the same identifier twice make the page write the document anew', () => {
    const text = documentText(sheetText(), sheetText({ int: '0x1' }));
    const now = { ...shown(text), sheets: [{ ...shown(text).sheets[0]!, int: '0x2' }] };
    expect(shown(withEdits(text, editsFor(text, shown(text), now)))).toEqual(now);
  });
});

test('tabs stay tabs', () => {
  const text = JSON.stringify(JSON.parse(TWO), null, '\t');
  const now = edited(text, ({ sheets }) => sheets.push({ ...sheets[0]!, id: 'three' }));
  expect(now.split('\n').filter((line) => line.startsWith(' '))).toEqual([]);
  expect(JSON.parse(now).sheets).toHaveLength(3);
});

test('an empty text becomes the whole document', () => {
  const page = shown(newDocumentText());
  expect(withEdits('', editsFor('', page, page))).toBe(
    newDocumentText().replace(/"id": ".*"/, `"id": "${page.sheets[0]!.id}"`),
  );
});

test('a document of 1,000 sheets is edited in one place', () => {
  const text = documentText(...Array.from({ length: 1000 }, (_, at) => sheetText({ id: `s${at}` })));
  const now = structuredClone(shown(text));
  now.sheets[500]!.int = '0x1';
  const edits = editsFor(text, shown(text), now);
  expect(edits).toEqual([{ offset: expect.any(Number), length: 6, text: '"0x1"' }]);
});
