import './sheetSync';
import { beforeEach, describe, expect, test, vi } from 'vitest';
import { readWord } from '../model/integer/wordLayout';
import { sheetOf } from '../model/sheet/bitsSheet';
import { SCROLL_LOCK_HORIZONTAL } from '../model/sheet/flagOptions';
import { ScrollMap } from '../model/sheet/scrollMap';
import { isSigned } from '../model/sheet/signMap';
import { documentData, sheetData } from '../testing/documents';
import { useSheetsStore } from './sheetsStore';
import { useSheetStore } from './sheetStore';

const sheets = () => useSheetsStore.getState();
const sheet = () => useSheetStore.getState();
const value = () => sheet().int.value;
const stored = () => sheets().getActiveSheet()!;

/** Shows a document with one sheet, which counts as saved. */
async function show(int: string | number, intResolution = 64) {
  const data = documentData({ sheets: [sheetData({ int, intResolution })] });
  await sheets().loadWordsDocument(data as never, { name: 'a', path: '/a' });
}

beforeEach(() => sheets().reset());

describe('without a sheet', () => {
  test('64 bits of zero are there, with a filled sign map and the focus on the one word', () => {
    expect(sheet()).toMatchObject({ id: null, focusedBlock: ['integer', 64, 0], flagOptions: [] });
    expect(sheet().int).toMatchObject({ value: 0n, resolution: 64 });
    expect(sheet().signMap.size).toBe(8 + 4 + 2 + 1);
    expect([...sheet().signMap.values()]).not.toContain(true);
  });

  test('operations reach no sheet', () => {
    sheet().updateWord(0, 8, 5n);
    expect(value()).toBe(5n);
    expect(sheets().sheets.size).toBe(0);
  });
});

describe('editing words', () => {
  test.each([
    { name: 'updateWord writes', act: () => sheet().updateWord(1, 32, 0xffffffffn), becomes: 0xffffffff_00008f80n },
    { name: 'updateWord masks to the width', act: () => sheet().updateWord(0, 8, 0x1ffn), becomes: 0x8fffn },
    { name: 'toggleWordBit flips', act: () => sheet().toggleWordBit(1, 8, 4), becomes: 0x9f80n },
    { name: 'shiftWordLeft drops bits', act: () => sheet().shiftWordLeft(0, 8, 1), becomes: 0x8f00n },
    { name: 'shiftWordRight keeps the top bit', act: () => sheet().shiftWordRight(0, 8, 1), becomes: 0x8fc0n },
    { name: 'shiftWordRightUnsigned', act: () => sheet().shiftWordRightUnsigned(0, 8, 1), becomes: 0x8f40n },
    { name: 'bitwiseNot', act: () => sheet().bitwiseNot(0, 8), becomes: 0x8f7fn },
    { name: 'updateColor32Part', act: () => sheet().updateColor32Part(0, 3, 1), becomes: 0x01008f80n },
    {
      name: 'updateColor32 without alpha',
      act: () => sheet().updateColor32(0, { red: 1, green: 2, blue: 3, alpha: 4 }, false),
      becomes: 0x00030201n,
    },
    {
      name: 'updateColor32 with alpha',
      act: () => sheet().updateColor32(0, { red: 1, green: 2, blue: 3, alpha: 4 }, true),
      becomes: 0x04030201n,
    },
  ])('$name, reaches the sheets and makes the document unsaved', async ({ act, becomes }) => {
    await show('0x8f80');
    const { revision } = sheet();
    act();
    expect(value()).toBe(becomes);
    expect(stored().int).toBe(becomes);
    expect(sheet().revision).toBe(revision + 1);
    expect(sheets().isUnsaved).toBe(true);
  });

  test('randomWord stays within its word', async () => {
    await show('0x8f80');
    vi.spyOn(Math, 'random').mockReturnValue(0.999);
    sheet().randomWord(1, 8);
    vi.restoreAllMocks();
    expect(value()).toBe(0xff80n);
  });

  test('a word that ends up as it was makes no document unsaved', async () => {
    await show('0x8f80');
    sheet().updateWord(0, 8, 0x80n);
    expect(sheets().isUnsaved).toBe(false);
  });

  test('words outside the value are refused with a sentence', async () => {
    await show(0, 32);
    expect(() => sheet().updateWord(1, 32, 1n)).toThrow(
      'Word setting would exceed bit resolution. Requested bits 32-63, but resolution is 32 bits',
    );
    expect(() => sheet().toggleWordBit(0, 8, 8)).toThrow('Bit index 8 is out of range for 8-bit word');
  });
});

describe('what belongs to the document', () => {
  test('signs', async () => {
    await show(0);
    sheet().toggleWordSign(3, 8);
    expect(isSigned(stored().signMap, 3, 8)).toBe(true);
    expect(sheets().isUnsaved).toBe(true);
  });

  test('visible rows; the row of full width cannot be hidden and trying changes nothing', async () => {
    await show(0);
    sheet().setNumberVisibility({ type: 'integer', bits: 64 }, false);
    expect(sheets().isUnsaved).toBe(false);
    sheet().setNumberVisibility({ type: 'color32', bits: 32 }, false);
    expect(stored().numberDefinitions.filter(({ visible }) => !visible)).toMatchObject([{ type: 'color32' }]);
    expect(sheets().isUnsaved).toBe(true);
  });

  test('converters, and their absence', async () => {
    await show(0);
    sheet().setConverters([]);
    expect(stored().converters).toEqual([]);
    sheet().setConverters(undefined);
    expect(stored().converters).toBeUndefined();
    expect(sheets().isUnsaved).toBe(true);
  });

  test('the resolution: a smaller one drops bits, keeps signs and what is hidden', async () => {
    await show(`0x${'f'.repeat(32)}`, 128);
    sheet().toggleWordSign(15, 8);
    sheet().setNumberVisibility({ type: 'integer', bits: 16 }, false);
    sheet().setIntResolution(32);
    expect(stored()).toMatchObject({ int: 0xffffffffn, intResolution: 32 });
    expect(isSigned(sheet().signMap, 15, 8)).toBe(true);
    expect(sheet().numberDefinitions.map(({ bits, visible }) => [bits, visible])).toEqual([
      [32, true],
      [16, false],
      [8, true],
      [32, true],
    ]);
  });
});

describe('what is only kept between visits', () => {
  test('switches', async () => {
    await show(0);
    sheet().setFlagOption('x');
    sheet().toggleFlagOption(SCROLL_LOCK_HORIZONTAL);
    expect(sheet().hasFlagOption(SCROLL_LOCK_HORIZONTAL)).toBe(true);
    expect(stored().flagOptions).toEqual(['x', SCROLL_LOCK_HORIZONTAL]);
    sheet().setFlagOption('x', false);
    expect(stored().flagOptions).toEqual([SCROLL_LOCK_HORIZONTAL]);
    sheet().setFlagOptions([]);
    expect(stored().flagOptions).toEqual([]);
    expect(sheets().isUnsaved).toBe(false);
  });

  test('the focus, which only the focused word can give up', async () => {
    await show(0);
    sheet().focus('integer', 8, 2);
    sheet().unfocus('integer', 8, 1);
    expect(stored().focusedBlock).toEqual(['integer', 8, 2]);
    sheet().unfocus('integer', 8, 2);
    expect(stored().focusedBlock).toEqual([null, null, null]);
    expect(sheets().isUnsaved).toBe(false);
  });

  test('scroll positions', async () => {
    await show(0);
    sheet().setScrollMap(ScrollMap.empty.withVertical(7));
    expect(stored().scrollMap.vertical).toBe(7);
    expect(sheets().isUnsaved).toBe(false);
  });
});

describe('choosing a sheet', () => {
  test('shows it, with the value cut to its width until the first edit stores it so', async () => {
    await show('0x1ffff', 16);
    expect(value()).toBe(0xffffn);
    expect(stored().int).toBe(0x1ffffn);
    sheet().updateWord(0, 8, 0n);
    expect(stored().int).toBe(0xff00n);
  });

  test('each sheet keeps its own value', () => {
    const first = sheets().addSheet();
    sheet().updateWord(0, 64, 1n);
    sheets().addSheet();
    expect(value()).toBe(0n);
    sheet().updateWord(0, 64, 2n);
    sheets().setActiveSheet(first.id);
    expect(value()).toBe(1n);
  });

  test('a new name arrives without a change of the value', () => {
    const { id } = sheets().addSheet();
    sheet().updateWord(0, 64, 1n);
    sheets().updateSheet(id, { displayName: 'Mine' });
    expect(sheet()).toMatchObject({ displayName: 'Mine' });
    expect(value()).toBe(1n);
  });

  test('after the last sheet was closed the state is empty again', () => {
    const { id } = sheets().addSheet();
    sheet().updateWord(0, 64, 1n);
    sheets().removeSheet(id);
    expect(sheet().id).toBeNull();
    expect(value()).toBe(0n);
  });

  test('a sheet that the document does not have is shown, and changing it is reported', () => {
    const log = vi.spyOn(console, 'error').mockReturnValue();
    sheet().setSheet(sheetOf({ id: 'gone', displayName: '', int: 0n, intResolution: 32 }));
    sheet().updateWord(0, 8, 1n);
    expect(log).toHaveBeenCalledExactlyOnceWith('Sheet with id gone not found for update.');
    expect(readWord(value(), 8, 0)).toBe(1n);
    log.mockRestore();
  });
});
