import { expect, test } from 'vitest';
import { filledSignMap, isSigned, signKey, toggleSign } from './signMap';

test('keys are the index, a colon and the width', () => {
  expect(signKey(0, 64)).toBe('0:64');
});

test('a word is unsigned until its sign is toggled, and the map before stays as it was', () => {
  const empty = new Map<string, boolean>();
  const once = toggleSign(empty, 2, 8);
  const twice = toggleSign(once, 2, 8);
  expect([isSigned(empty, 2, 8), isSigned(once, 2, 8), isSigned(twice, 2, 8)]).toEqual([false, true, false]);
  expect([...twice]).toEqual([['2:8', false]]);
  expect(isSigned(once, 2, 16)).toBe(false);
});

test('a filled map names the words 1 to the count of every row as unsigned', () => {
  expect(Object.fromEntries(filledSignMap(32))).toEqual({
    '1:8': false,
    '2:8': false,
    '3:8': false,
    '4:8': false,
    '1:16': false,
    '2:16': false,
    '1:32': false,
  });
});
