import { beforeEach, describe, expect, test, vi } from 'vitest';
import type { WordsDocumentData } from '../document/schema';
import { definitionsFor } from '../model/sheet/numberDefinitions';
import { documentData, sheetData } from '../testing/documents';
import { useSheetsStore } from './sheetsStore';

const store = () => useSheetsStore.getState();
const names = () => [...store().sheets.values()].map(({ displayName }) => displayName);
const load = (changes: Record<string, unknown>, file?: { name: string; path?: string }) =>
  store().loadWordsDocument(documentData(changes) as WordsDocumentData, file);

beforeEach(() => store().reset());

describe('adding and removing sheets', () => {
  test('the first sheet opens an untitled, unsaved document', () => {
    const sheet = store().addSheet();
    expect(sheet.id).toMatch(/^[\w-]{21}$/);
    expect(sheet).toMatchObject({ displayName: 'Number A', int: 0n, intResolution: 64, converters: undefined });
    expect(sheet.focusedBlock).toEqual(['integer', 64, 0]);
    expect(sheet.signMap.size).toBe(0);
    expect(store()).toMatchObject({
      activeSheetKey: sheet.id,
      documentFile: { name: 'Untitled.words.tessary' },
      isUnsaved: true,
    });
  });

  test('a new sheet takes the first free name and keeps the document file', () => {
    store().updateWordsDocumentFileState({ name: 'a.tessary', path: '/a.tessary' });
    const first = store().addSheet();
    store().addSheet();
    store().updateSheet(first.id, { displayName: 'Mine' });
    store().addSheet();
    expect(names()).toEqual(['Mine', 'Number B', 'Number A']);
    expect(store().documentFile).toEqual({ name: 'a.tessary', path: '/a.tessary' });
  });

  test('after a removal the last sheet in tab order is shown', () => {
    const [first, second, third] = [store().addSheet(), store().addSheet(), store().addSheet()];
    store().updateWordsDocumentFileState({ name: 'a.tessary' });
    store().setActiveSheet(first.id);
    store().removeSheet(second.id);
    expect(store()).toMatchObject({ activeSheetKey: third.id, isUnsaved: true });
    store().removeSheet(third.id);
    store().removeSheet(first.id);
    expect(store().activeSheetKey).toBeNull();
    expect(store().getActiveSheet()).toBeUndefined();
    expect(store().documentFile).toEqual({ name: 'a.tessary' });
  });

  test('a sheet is moved to a place in tab order, at most to either end', () => {
    const [first, second, third] = [store().addSheet(), store().addSheet(), store().addSheet()].map(({ id }) => id);
    const order = () => [...store().sheets.keys()];
    store().moveSheet(first!, 1);
    expect(order()).toEqual([second, first, third]);
    store().moveSheet(third!, -5);
    expect(order()).toEqual([third, second, first]);
    store().moveSheet(second!, 99);
    expect(order()).toEqual([third, first, second]);
    store().updateWordsDocumentFileState({ name: 'a.tessary' });
    store().moveSheet(second!, 99);
    store().moveSheet('nobody', 0);
    expect(order()).toEqual([third, first, second]);
    expect(store().isUnsaved).toBe(false);
    store().moveSheet(second!, 0);
    expect(store().isUnsaved).toBe(true);
  });

  test('only a sheet that exists can be shown or removed', () => {
    const { id } = store().addSheet();
    store().updateWordsDocumentFileState({ name: 'a.tessary' });
    store().setActiveSheet('nobody');
    store().removeSheet('nobody');
    expect(store()).toMatchObject({ activeSheetKey: id, isUnsaved: false });
    expect(store().getSheetName(id)).toBe('Number A');
    expect(store().getSheetName('nobody')).toBeUndefined();
  });
});

describe('changing sheets', () => {
  test.each([
    ['value', { int: 5n }],
    ['name', { displayName: 'Mine' }],
    ['width', { intResolution: 128 }],
    ['signs', { signMap: new Map([['0:64', true]]) }],
    ['rows', { numberDefinitions: definitionsFor(32) }],
    ['converters', { converters: undefined }],
  ])('a new %s makes the document unsaved', (_, changes) => {
    const { id } = store().addSheet();
    store().updateWordsDocumentFileState({ name: 'a.tessary' });
    store().updateSheet(id, changes);
    expect(store().getActiveSheet()).toMatchObject(changes);
    expect(store().isUnsaved).toBe(true);
  });

  test.each([
    ['focus', { focusedBlock: [null, null, null] as const }],
    ['switches', { flagOptions: ['scroll-lock-horizontal'] }],
  ])('a new %s does not', (_, changes) => {
    const { id } = store().addSheet();
    store().updateWordsDocumentFileState({ name: 'a.tessary' });
    store().updateSheet(id, changes);
    expect(store().getActiveSheet()).toMatchObject(changes);
    expect(store().isUnsaved).toBe(false);
  });

  test('an unknown sheet is only logged', () => {
    const log = vi.spyOn(console, 'error').mockImplementation(() => {});
    const before = store();
    store().updateSheet('nobody', { int: 1n });
    expect(log).toHaveBeenCalledExactlyOnceWith('Sheet with id nobody not found for update.');
    expect(store()).toEqual(before);
    log.mockRestore();
  });
});

describe('loading a document', () => {
  test('takes name, value and width; signs, rows and converters start afresh', async () => {
    await load({
      sheets: [
        sheetData({
          int: '0x1f',
          intResolution: 32,
          signMap: { '0:32': true },
          numberDefinitions: [{ type: 'integer', bits: 8, visible: false }],
          converters: [],
        }),
      ],
    });
    const sheet = store().getActiveSheet()!;
    expect(sheet).toMatchObject({ displayName: 'Number A', int: 31n, intResolution: 32, converters: undefined });
    expect(sheet.signMap.size).toBe(0);
    expect(sheet.numberDefinitions).toEqual(definitionsFor(32));
  });

  test.each([
    ['0x1f', 31n],
    ['0X1F', 31n],
    ['0o37', 31n],
    ['0b11111', 31n],
    [' 31\n', 31n],
    ['', 0n],
    [31, 31n],
  ])('reads the integer %j', async (int, value) => {
    await load({ sheets: [sheetData({ int })] });
    expect(store().getActiveSheet()!.int).toBe(value);
  });

  test('keeps an integer that is wider than its sheet as it was read', async () => {
    await load({ sheets: [sheetData({ int: '0x1ff', intResolution: 8 })] });
    expect(store().getActiveSheet()!.int).toBe(0x1ffn);
    expect(store().getWordsDocument().sheets[0]!.int).toBe('0x1ff');
  });

  test.each([
    ['its name', { displayName: 'Mine' }],
    ['its converters', { converters: ['A10'] }],
    ['a sign', { signMap: new Map([['0:8', true]]) }],
  ])('takes the excess of such an integer away with the first edit, also of %s', async (_, changes) => {
    await load({ sheets: [sheetData({ id: 'one', int: '0x1ff', intResolution: 8 })] });
    store().updateSheet('one', { flagOptions: [], focusedBlock: ['integer', 8, 0] });
    expect(store().getActiveSheet()!.int).toBe(0x1ffn);
    store().updateSheet('one', changes);
    expect(store().getActiveSheet()!.int).toBe(0xffn);
  });

  test('a document with a path counts as saved, one without as unsaved', async () => {
    await load({}, { name: 'a.tessary', path: '/a.tessary' });
    expect(store()).toMatchObject({ documentFile: { name: 'a.tessary', path: '/a.tessary' }, isUnsaved: false });
    await load({}, { name: 'b.tessary' });
    expect(store()).toMatchObject({ documentFile: { name: 'b.tessary' }, isUnsaved: true });
    await load({});
    expect(store()).toMatchObject({ documentFile: { name: 'Untitled.words.tessary' }, isUnsaved: true });
  });

  test('shows the sheet that was shown before when the document has it, else the first, else none', async () => {
    const sheets = ['one', 'two'].map((id) => sheetData({ id }));
    await load({ sheets });
    expect(store().activeSheetKey).toBe('one');
    store().setActiveSheet('two');
    await load({ sheets });
    expect(store().activeSheetKey).toBe('two');
    await load({ sheets: [] });
    expect(store().activeSheetKey).toBeNull();
    expect(store().sheets.size).toBe(0);
  });

  test('keeps both of two sheets with one identifier; the later one gets a fresh one', async () => {
    await load({ sheets: [sheetData({ id: 'same', int: 1 }), sheetData({ id: 'same', int: 2 })] });
    const [first, second] = [...store().sheets.values()];
    expect(first).toMatchObject({ id: 'same', int: 1n });
    expect(second!.int).toBe(2n);
    expect(second!.id).toMatch(/^[\w-]{21}$/);
  });

  test('an integer that cannot be read leaves everything as it was', async () => {
    const { id } = store().addSheet();
    await expect(load({ sheets: [sheetData(), sheetData({ int: '0xZZ' })] })).rejects.toThrow(SyntaxError);
    expect([...store().sheets.keys()]).toEqual([id]);
  });

  test('what is saved holds every sheet in tab order', async () => {
    const sheets = ['one', 'two', 'three'].map((id, place) => sheetData({ id, int: `0x${place}` }));
    await load({ sheets });
    expect(store().getWordsDocument().toData()).toEqual(documentData({ sheets }));
  });
});
