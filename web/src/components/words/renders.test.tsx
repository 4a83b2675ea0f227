// @vitest-environment jsdom
import { act, cleanup, fireEvent, screen } from '@testing-library/react';
import { memo } from 'react';
import { afterEach, beforeEach, expect, test, vi } from 'vitest';
import { useSheetsStore } from '../../stores/sheetsStore';
import { useSheetStore } from '../../stores/sheetStore';
import { renderPage } from '../../testing/renderPage';

const renders = vi.hoisted(() => [] as string[]);

/** Notes each render of a block and renders it as it is. */
function counted(name: string, block: unknown) {
  const render = (block as { type: (props: unknown) => React.ReactNode }).type;
  return memo((props: { row: { key: string }; index: number }) => {
    renders.push(`${name} ${props.row.key} ${props.index}`);
    return render(props);
  });
}

vi.mock(import('./word/WordBlock'), async (load) => ({
  WordBlock: counted('word', (await load()).WordBlock) as never,
}));
vi.mock(import('./word/ColorBlock'), async (load) => ({
  ColorBlock: counted('color', (await load()).ColorBlock) as never,
}));

/** Tells whoever watches a size of another one. */
let resized: (() => void)[] = [];

beforeEach(() => {
  resized = [];
  vi.stubGlobal(
    'ResizeObserver',
    class {
      constructor(report: () => void) {
        resized.push(report);
      }
      observe() {}
      disconnect() {}
    },
  );
  // jsdom lays nothing out; a view of this size holds every row of the sheets here.
  vi.spyOn(HTMLElement.prototype, 'clientWidth', 'get').mockReturnValue(1280);
  vi.spyOn(HTMLElement.prototype, 'clientHeight', 'get').mockReturnValue(9000);
  useSheetsStore.getState().reset();
  useSheetsStore.getState().addSheet();
  renderPage('/tools/words');
});
afterEach(() => {
  cleanup();
  vi.restoreAllMocks();
  vi.unstubAllGlobals();
});

function rendersOf(change: () => void): string[] {
  renders.length = 0;
  act(change);
  return [...renders].sort();
}

test('an edit renders only the words that hold the changed bits, one of each row', () => {
  expect(rendersOf(() => useSheetStore.getState().toggleWordBit(0, 64, 37))).toEqual([
    'color color32:32 1',
    'word integer:16 2',
    'word integer:32 1',
    'word integer:64 0',
    'word integer:8 4',
  ]);
});

test('an edit that changes nothing renders nothing', () => {
  expect(rendersOf(() => useSheetStore.getState().updateWord(0, 64, 0n))).toEqual([]);
});

test('a sign renders its word alone, the focus the two words between which it moves', () => {
  expect(rendersOf(() => useSheetStore.getState().toggleWordSign(3, 8))).toEqual(['word integer:8 3']);
  expect(rendersOf(() => useSheetStore.getState().focus('integer', 8, 3))).toEqual([
    'word integer:64 0',
    'word integer:8 3',
  ]);
});

test('a new sheet name and scroll positions render no word', () => {
  const { id, scrollMap, setScrollMap } = useSheetStore.getState();
  expect(rendersOf(() => useSheetsStore.getState().updateSheet(id!, { displayName: 'Mine' }))).toEqual([]);
  expect(rendersOf(() => setScrollMap(scrollMap.withRow('integer:8', 9)))).toEqual([]);
});

test('another width of the window renders only words whose lengths depend on it', () => {
  act(() => useSheetStore.getState().setIntResolution(1024));
  const words = rendersOf(() => {
    vi.spyOn(HTMLElement.prototype, 'clientWidth', 'get').mockReturnValue(1200);
    for (const report of resized) report();
  });
  const rows = new Set(words.map((word) => word.split(' ')[1]));
  expect([...rows].sort()).toEqual(['integer:1024', 'integer:128', 'integer:256', 'integer:512']);
});

test('at 1024 bits with every row near the view an edit renders ten words at most', () => {
  act(() => useSheetStore.getState().setIntResolution(1024));
  const words = rendersOf(() => useSheetStore.getState().toggleWordBit(0, 8, 7));
  expect(words).toHaveLength(9);
  expect(words).toContain('word integer:1024 0');
  expect(words).toContain('word integer:8 0');
});

test('Enter keeps the field, its focus and the place of the caret', () => {
  const field = screen.getAllByRole<HTMLTextAreaElement>('textbox', { name: 'Value' })[0]!;
  const left = vi.fn();
  act(() => field.focus());
  field.addEventListener('blur', left);
  fireEvent.input(field, { target: { value: '0042' } });
  field.setSelectionRange(1, 1);
  fireEvent.keyDown(field, { key: 'Enter' });
  expect(field.value).toBe('42');
  expect(document.activeElement).toBe(field);
  expect(field.selectionStart).toBe(1);
  expect(left).not.toHaveBeenCalled();
});
