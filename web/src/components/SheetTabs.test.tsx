// @vitest-environment jsdom
import { act, cleanup, screen } from '@testing-library/react';
import { memo } from 'react';
import { afterEach, beforeEach, expect, test, vi } from 'vitest';
import { useSheetsStore } from '../stores/sheetsStore';
import { renderPage } from '../testing/renderPage';

const renders = vi.hoisted(() => [] as string[]);

vi.mock(import('./SheetTab'), async (load) => {
  const { type: Tab } = (await load()).SheetTab;
  const noted: typeof Tab = (props) => {
    renders.push(props.name);
    return Tab(props);
  };
  return { SheetTab: memo(noted) };
});

beforeEach(() => {
  vi.spyOn(HTMLElement.prototype, 'clientWidth', 'get').mockReturnValue(1280);
  renders.length = 0;
  const { reset, addSheet, updateSheet } = useSheetsStore.getState();
  reset();
  for (const displayName of ['A', 'B', 'C', 'D']) {
    addSheet();
    updateSheet(useSheetsStore.getState().activeSheetKey!, { displayName });
  }
  renderPage('/tools/words');
});
afterEach(() => {
  cleanup();
  vi.restoreAllMocks();
});

test('each tab is rendered once when the strip comes', () => {
  expect(screen.getAllByRole('tab')).toHaveLength(4);
  expect(renders).toEqual(['A', 'B', 'C', 'D']);
});

test('another active sheet renders its tab and the one before', () => {
  renders.length = 0;
  const [first] = useSheetsStore.getState().sheets.keys();
  act(() => useSheetsStore.getState().setActiveSheet(first!));
  expect(renders).toEqual(['A', 'D']);
});
