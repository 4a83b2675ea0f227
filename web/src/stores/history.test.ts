import './sheetSync';
import fc from 'fast-check';
import { beforeEach, describe, expect, test } from 'vitest';
import type { WordsDocumentData } from '../document/schema';
import { DOCUMENT_FIELDS } from '../model/sheet/bitsSheet';
import { documentData, sheetData } from '../testing/documents';
import { currentGesture, nextGesture } from './gesture';
import { forgetSince, historyPoint, inOneStep, LONGEST_HISTORY, noteSavedAt, redo, undo, useHistory } from './history';
import { useSheetsStore } from './sheetsStore';
import { useSheetStore } from './sheetStore';

const sheets = () => useSheetsStore.getState();
const sheet = () => useSheetStore.getState();
const depth = () => useHistory.getState().past.length;

async function load(path: string | undefined, ...widths: number[]) {
  const sheetsData = widths.map((intResolution, index) => sheetData({ id: `s${index}`, int: '0x5a', intResolution }));
  const data = documentData({ sheets: sheetsData }) as WordsDocumentData;
  await sheets().loadWordsDocument(data, path === undefined ? undefined : { name: path, path });
}

/** What undo and redo promise to bring back: all that documents hold, the file and whether it is saved. */
function snapshot() {
  const { documentFile, isUnsaved } = sheets();
  const fields = [...sheets().sheets.values()].map((each) =>
    Object.fromEntries(['id' as const, ...DOCUMENT_FIELDS].map((field) => [field, each[field]])),
  );
  return { documentFile, isUnsaved, fields };
}

/** Opens a document without any history. */
async function begin() {
  sheets().updateWordsDocumentFileState({ name: 'saved', path: '/saved' }); // so that nothing is worth keeping
  sheets().reset();
  await load('/start', 64);
  nextGesture();
}

beforeEach(begin);

describe('a step', () => {
  test('is taken back and made again, and names what it was', () => {
    sheet().randomWord(0, 64);
    const random = sheet().int.value;
    expect(undo()?.cause).toEqual({ kind: 'random', word: { type: 'integer', bits: 64, index: 0 } });
    expect(sheet().int.value).toBe(0x5an);
    expect(redo()?.cause?.kind).toBe('random');
    expect(sheet().int.value).toBe(random);
  });

  test('is none when nothing changed in what documents hold', () => {
    sheet().updateWord(0, 64, 0x5an);
    sheet().focus('integer', 8, 1);
    sheet().toggleFlagOption('scroll-lock-horizontal');
    sheet().setScrollMap(sheet().scrollMap.withVertical(40));
    expect(depth()).toBe(0);
    expect(undo()).toBeUndefined();
  });

  test('that was only the beginning of something else is forgotten, as if it had not been', () => {
    sheet().updateWord(0, 64, 1n);
    const before = snapshot();
    const steps = depth();
    nextGesture();
    const first = currentGesture();
    sheet().toggleWordBit(0, 64, 5);
    nextGesture();
    sheet().toggleWordBit(0, 64, 5);
    forgetSince(first);
    expect(depth()).toBe(steps);
    expect(snapshot()).toEqual(before);
    expect(redo()).toBeUndefined();
    forgetSince(first);
    expect(depth()).toBe(steps);
  });

  test('holds all that one gesture did to a value', () => {
    for (const bit of [8, 9, 10]) sheet().toggleWordBit(0, 64, bit);
    expect(depth()).toBe(1);
    nextGesture();
    sheet().toggleWordBit(0, 64, 11);
    expect(depth()).toBe(2);
    undo();
    undo();
    expect(sheet().int.value).toBe(0x5an);
  });

  test('holds one kind of change: the same gesture may make several', () => {
    sheet().toggleWordBit(0, 64, 8);
    sheet().bitwiseNot(0, 64);
    expect(depth()).toBe(2);
  });

  test('leaves focus, scroll positions and switches as they are now', () => {
    sheet().updateWord(0, 64, 1n);
    sheet().focus('integer', 8, 3);
    sheet().setScrollMap(sheet().scrollMap.withVertical(40));
    undo();
    expect(sheet().focusedBlock).toEqual(['integer', 8, 3]);
    expect(sheet().scrollMap.vertical).toBe(40);
  });

  test('made after an undo gives up what could be made again', () => {
    sheet().updateWord(0, 64, 1n);
    undo();
    nextGesture();
    sheet().updateWord(0, 64, 2n);
    expect(redo()).toBeUndefined();
    undo();
    expect(sheet().int.value).toBe(0x5an);
  });
});

describe('the unsaved mark', () => {
  test('goes where undo or redo reach what is saved, and comes back beyond it', () => {
    sheet().updateWord(0, 64, 1n);
    expect(sheets().isUnsaved).toBe(true);
    undo();
    expect(sheets().isUnsaved).toBe(false);
    redo();
    sheets().updateWordsDocumentFileState({ name: 'a', path: '/a' });
    expect(sheets().isUnsaved).toBe(false);
    undo();
    expect(sheets().isUnsaved).toBe(true);
    redo();
    expect(sheets().isUnsaved).toBe(false);
  });

  test('goes where undo or redo reach what a save wrote that ended after later edits', () => {
    const edit = (value: bigint) => {
      sheet().updateWord(0, 64, value);
      nextGesture();
    };
    edit(1n);
    const point = historyPoint();
    edit(2n);
    edit(3n);
    noteSavedAt(point);
    undo();
    expect(sheets().isUnsaved).toBe(true);
    undo();
    expect(sheet().int.value).toBe(1n);
    expect(sheets().isUnsaved).toBe(false);
    undo();
    expect(sheets().isUnsaved).toBe(true);
    noteSavedAt(point);
    redo();
    expect(sheets().isUnsaved).toBe(false);
  });

  test('stays everywhere when what a save wrote cannot be reached any more', () => {
    sheet().updateWord(0, 64, 1n);
    const point = historyPoint();
    undo();
    nextGesture();
    sheet().updateWord(0, 64, 2n);
    noteSavedAt(point);
    undo();
    expect(sheets().isUnsaved).toBe(true);
  });

  test('stays when what is saved was given up', () => {
    sheet().updateWord(0, 64, 1n);
    sheets().updateWordsDocumentFileState({ name: 'a', path: '/a' });
    undo();
    nextGesture();
    sheet().updateWord(0, 64, 2n);
    undo();
    expect(sheets().isUnsaved).toBe(true);
  });

  test('is not lost by going on with a gesture after saving', () => {
    sheet().toggleWordBit(0, 64, 8);
    sheets().updateWordsDocumentFileState({ name: 'a', path: '/a' });
    sheet().toggleWordBit(0, 64, 9);
    undo();
    expect([sheet().int.value, sheets().isUnsaved]).toEqual([0x15an, false]);
  });
});

describe('a whole document', () => {
  test('that was discarded comes back with its file and its unsaved mark', async () => {
    sheet().updateWord(0, 64, 1n);
    const discarded = snapshot();
    await load('/other', 32, 128);
    const opened = snapshot();
    nextGesture();
    sheet().updateWord(0, 32, 9n);
    undo();
    expect(snapshot()).toEqual(opened);
    undo();
    expect(snapshot()).toEqual(discarded);
    undo();
    expect([sheet().int.value, sheets().isUnsaved]).toEqual([0x5an, false]);
    redo();
    redo();
    expect(snapshot()).toEqual(opened);
    expect(sheets().isUnsaved).toBe(false);
  });

  test('that was closed comes back', () => {
    sheet().updateWord(0, 64, 1n);
    const closed = snapshot();
    sheets().reset();
    undo();
    expect(snapshot()).toEqual(closed);
    expect(sheet().int.value).toBe(1n);
  });

  test('replaced by a new one is one step', () => {
    sheet().updateWord(0, 64, 1n);
    const replaced = snapshot();
    inOneStep(() => {
      sheets().reset();
      sheets().addSheet();
    });
    expect(depth()).toBe(2);
    undo();
    expect(snapshot()).toEqual(replaced);
  });

  test('that its file holds needs no way back', async () => {
    sheet().updateWord(0, 64, 1n);
    sheets().updateWordsDocumentFileState({ name: 'a', path: '/a' });
    await load('/other', 32);
    expect(undo()).toBeUndefined();
    expect(sheets().documentFile?.path).toBe('/other');
  });
});

test('a closed sheet comes back with its place, identifier, signs, rows and converters', async () => {
  await load('/start', 64, 32, 128);
  sheets().setActiveSheet('s1');
  sheet().toggleWordSign(0, 32);
  sheet().setConverters(['A5']);
  sheet().setNumberVisibility({ type: 'integer', bits: 8 }, false);
  const before = snapshot();
  sheets().removeSheet('s1');
  undo();
  expect(snapshot()).toEqual(before);
  expect(sheets().activeSheetKey).toBe('s1');
});

test(`the oldest steps are forgotten after ${LONGEST_HISTORY}`, () => {
  for (let value = 0n; value < LONGEST_HISTORY + 5; value++) {
    nextGesture();
    sheet().updateWord(0, 64, 1000n + value);
  }
  expect(depth()).toBe(LONGEST_HISTORY);
  while (undo());
  expect(sheet().int.value).toBe(1004n);
  expect(sheets().isUnsaved).toBe(true);
});

// Every operation of a user, chosen and filled in by chance.
const operation = fc.oneof(
  {
    weight: 4,
    arbitrary: fc.record({ op: fc.constant('word' as const), value: fc.bigInt({ min: 0n, max: 2n ** 64n }) }),
  },
  { weight: 2, arbitrary: fc.record({ op: fc.constant('bit' as const), bit: fc.nat({ max: 31 }) }) },
  fc.record({ op: fc.constant('random' as const) }),
  fc.record({ op: fc.constant('color' as const), byte: fc.nat({ max: 255 }) }),
  fc.record({ op: fc.constant('sign' as const), index: fc.nat({ max: 1 }) }),
  fc.record({ op: fc.constant('width' as const), width: fc.constantFrom(32, 64, 128, 1024) }),
  fc.record({ op: fc.constant('rows' as const), visible: fc.boolean() }),
  fc.record({ op: fc.constant('converters' as const), list: fc.constantFrom(undefined, [], ['A2'], ['FLOAT']) }),
  fc.record({ op: fc.constant('rename' as const), name: fc.string() }),
  fc.record({ op: fc.constant('add' as const) }),
  fc.record({ op: fc.constant('remove' as const), place: fc.nat({ max: 5 }) }),
  fc.record({ op: fc.constant('move' as const), place: fc.nat({ max: 5 }), to: fc.nat({ max: 5 }) }),
  fc.record({ op: fc.constant('show' as const), place: fc.nat({ max: 5 }) }),
  fc.record({ op: fc.constant('save' as const) }),
  fc.record({ op: fc.constant('close' as const) }),
  fc.record({ op: fc.constant('load' as const), path: fc.constantFrom(undefined, '/x') }),
  fc.record({ op: fc.constant('undo' as const) }),
  fc.record({ op: fc.constant('redo' as const) }),
  fc.record({ op: fc.constant('gesture' as const) }),
);
type Operation = typeof operation extends fc.Arbitrary<infer T> ? T : never;

async function perform(chosen: Operation): Promise<void> {
  const at = (place: number) => [...sheets().sheets.keys()][place] ?? '';
  switch (chosen.op) {
    case 'word':
      return sheet().updateWord(0, 32, chosen.value);
    case 'bit':
      return sheet().toggleWordBit(0, 32, chosen.bit);
    case 'random':
      return sheet().randomWord(0, 32);
    case 'color':
      return sheet().updateColor32Part(0, 1, chosen.byte);
    case 'sign':
      return sheet().toggleWordSign(chosen.index, 8);
    case 'width':
      return sheet().setIntResolution(chosen.width);
    case 'rows':
      return sheet().setNumberVisibility({ type: 'color32', bits: 32 }, chosen.visible);
    case 'converters':
      return sheet().setConverters(chosen.list);
    case 'rename':
      if (sheet().id !== null) sheets().updateSheet(sheet().id!, { displayName: chosen.name });
      return;
    case 'add':
      return void sheets().addSheet();
    case 'remove':
      return sheets().removeSheet(at(chosen.place));
    case 'move':
      return sheets().moveSheet(at(chosen.place), chosen.to);
    case 'show':
      return sheets().setActiveSheet(at(chosen.place));
    case 'save':
      if (sheets().documentFile) sheets().updateWordsDocumentFileState({ name: 's', path: '/s' });
      return;
    case 'close':
      return sheets().reset();
    case 'load':
      return load(chosen.path, 32, 64);
    case 'undo':
      return void undo();
    case 'redo':
      return void redo();
    case 'gesture':
      return nextGesture();
  }
}

test('any sequence of operations can be undone to its beginning and redone to its end, each step to its own state', async () => {
  await fc.assert(
    fc.asyncProperty(fc.array(operation, { maxLength: 40 }), async (operations) => {
      await begin();
      for (const each of operations) await perform(each);

      const last = snapshot();
      const states = [last];
      while (undo()) states.push(snapshot());
      for (const expected of states.slice(0, -1).reverse()) {
        expect(redo()).toBeDefined();
        expect(snapshot()).toEqual(expected);
      }
      expect(redo()).toSatisfy((step) => step === undefined || operations.some(({ op }) => op === 'undo'));
    }),
    { numRuns: 300 },
  );
});
