import { expect, test } from 'vitest';
import { isDialogAbortError } from './dialogAbort';
import { getFileNameFromPath } from './fileHandle';

test.each([
  ['C:\\dir\\a.words.tessary', 'a.words.tessary'],
  ['/home/user/b.tessary', 'b.tessary'],
  ['mixed\\and/c.tessary', 'c.tessary'],
  ['d.tessary', 'd.tessary'],
  ['/home/user/', 'unknown'],
  ['C:\\dir\\', 'unknown'],
  ['', 'unknown'],
])('getFileNameFromPath: %s gives %s', (path, name) => {
  expect(getFileNameFromPath(path)).toBe(name);
});

test.each([
  [new DOMException('The user aborted a request.', 'AbortError'), true],
  [new Error('user-cancelled'), true],
  [new Error('User-Cancelled'), false],
  [new Error('No file selected'), false],
  ['user-cancelled', false],
  [undefined, false],
])('isDialogAbortError: %s is %s', (error, expected) => {
  expect(isDialogAbortError(error)).toBe(expected);
});
