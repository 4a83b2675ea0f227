// @vitest-environment jsdom
import type { KeyboardEvent } from 'react';
import { beforeEach, expect, test } from 'vitest';
import { seekByLetter } from './rovingFocus';

let items: HTMLElement[] = [];
let clock = 0;

beforeEach(() => {
  document.body.innerHTML = ['LCH', 'LAB', 'OKLAB', 'OKLCH'].map((name) => `<button>${name}</button>`).join('');
  items = [...document.querySelectorAll('button')];
  items[0]!.focus();
  clock += 10_000;
});

/** Types letters where the focus is, with some milliseconds between two. */
function type(letters: string, pause = 100): string | null | undefined {
  for (const key of letters) {
    clock += pause;
    const event = { key, target: document.activeElement, timeStamp: clock } as unknown as KeyboardEvent;
    seekByLetter(event, items);
  }
  return document.activeElement?.textContent;
}

test('a letter goes to the next item that begins with it, and once more on to the one after', () => {
  expect(type('o')).toBe('OKLAB');
  expect(type('o')).toBe('OKLCH');
  expect(type('o')).toBe('OKLAB');
});

test('letters typed one after the other are the beginning of one name', () => {
  expect(type('oklc')).toBe('OKLCH');
});

test('after a rest a letter begins anew', () => {
  type('ok');
  expect(type('l', 1000)).toBe('LCH');
  expect(type('a')).toBe('LAB');
});

test('what no item begins with leaves the focus where it is', () => {
  expect(type('x')).toBe('LCH');
});
