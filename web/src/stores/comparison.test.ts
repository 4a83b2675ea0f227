// @vitest-environment jsdom
import { beforeEach, expect, test } from 'vitest';
import { useBitOutlines } from './bitOutlines';
import { compareSheets, endComparison, useComparison } from './comparison';
import { RECORD_KEY } from './persistStorage';
import { useSheetsStore } from './sheetsStore';

const sheets = () => useSheetsStore.getState();
const comparison = () => useComparison.getState().comparison;
const outlined = () => useBitOutlines.getState().difference;

let first: string;
let second: string;
beforeEach(() => {
  endComparison();
  sheets().reset();
  first = sheets().addSheet().id;
  second = sheets().addSheet().id;
  sheets().updateSheet(first, { int: 0b1010n });
  sheets().updateSheet(second, { int: 0b0110n });
});

test('bits that differ are outlined in the one of the two sheets that is shown, and in no third one', () => {
  const third = sheets().addSheet().id;
  compareSheets(first, second);
  expect(comparison()?.differences).toBe(0b1100n);
  expect(outlined().sheetId).toBeNull();
  sheets().setActiveSheet(second);
  expect(outlined()).toEqual({ sheetId: second, bits: 0b1100n });
  sheets().setActiveSheet(first);
  expect(outlined()).toEqual({ sheetId: first, bits: 0b1100n });
  sheets().setActiveSheet(third);
  expect(outlined().sheetId).toBeNull();
});

test('differences follow an edit of either sheet', () => {
  compareSheets(first, second);
  sheets().updateSheet(second, { int: 0b0111n });
  expect(comparison()?.differences).toBe(0b1101n);
  sheets().updateSheet(first, { int: 0b0111n });
  expect(comparison()?.differences).toBe(0n);
});

test('bits that only the wider sheet has differ where they are set', () => {
  sheets().updateSheet(second, { int: (1n << 190n) | 0b1010n, intResolution: 256 });
  compareSheets(first, second);
  expect(comparison()?.differences).toBe(1n << 190n);
});

test('bits beyond a narrowed sheet do not count, though they are still stored', () => {
  sheets().updateSheet(second, { intResolution: 2 });
  compareSheets(first, second);
  expect(comparison()?.differences).toBe(0b1000n);
});

test.each(['removal', 'another document'])(
  'a comparison ends with the %s of a sheet, and its outlines with it',
  (how) => {
    compareSheets(first, second);
    if (how === 'removal') sheets().removeSheet(second);
    else sheets().reset();
    expect(comparison()).toBeUndefined();
    expect(outlined()).toEqual({ sheetId: null, bits: 0n });
  },
);

test('nothing of a comparison is stored', () => {
  const record = () => {
    sheets().persistState();
    return localStorage.getItem(RECORD_KEY);
  };
  const before = record();
  expect(before).toContain('Number A');
  compareSheets(first, second);
  expect(record()).toBe(before);
});
