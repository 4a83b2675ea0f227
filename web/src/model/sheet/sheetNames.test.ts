import { expect, test } from 'vitest';
import { freeSheetName, letterSequence, parseSheetName } from './sheetNames';

test.each([
  { place: 0, letters: 'A' },
  { place: 25, letters: 'Z' },
  { place: 26, letters: 'AA' },
  { place: 27, letters: 'AB' },
  { place: 51, letters: 'AZ' },
  { place: 52, letters: 'BA' },
  { place: 701, letters: 'ZZ' },
  { place: 702, letters: 'AAA' },
])('letter sequence $place is $letters', ({ place, letters }) => {
  expect(letterSequence(place)).toBe(letters);
});

test('a new sheet gets the first name that no other sheet has', () => {
  expect(freeSheetName([])).toBe('Number A');
  expect(freeSheetName(['Number A', 'Number C', 'mine'])).toBe('Number B');
  expect(freeSheetName(Array.from({ length: 26 }, (_, place) => `Number ${letterSequence(place)}`))).toBe('Number AA');
});

test('a typed name loses the blanks around it', () => {
  expect(parseSheetName('  Keys of today ')).toEqual({ ok: true, value: 'Keys of today' });
});

test('a name of blanks is refused', () => {
  expect(parseSheetName(' \t')).toEqual({ ok: false, reason: 'Sheet name cannot be empty.' });
});
