// @vitest-environment jsdom
import { act, cleanup, render } from '@testing-library/react';
import { afterEach, beforeEach, expect, test } from 'vitest';
import { useSheetStore } from '../../../stores/sheetStore';
import { useWord } from './useWord';

const shown: string[] = [];

function Word({ name, isInView }: { name: string; isInView: boolean }) {
  shown.push(`${name} ${useWord(8, 0, isInView)}`);
  return null;
}

beforeEach(() => useSheetStore.getState().reset());
afterEach(cleanup);

test('words out of view follow those in view', () => {
  const words = (isSecondInView: boolean) => (
    <>
      <Word name="first" isInView />
      <Word name="second" isInView={isSecondInView} />
    </>
  );
  const { rerender } = render(words(false));
  shown.length = 0;
  act(() => useSheetStore.getState().updateWord(0, 8, 7n));
  expect(shown).toEqual(['first 7', 'second 0', 'second 7']);

  rerender(words(true));
  shown.length = 0;
  act(() => useSheetStore.getState().updateWord(0, 8, 9n));
  expect(shown).toEqual(['first 9', 'second 9']);
});
