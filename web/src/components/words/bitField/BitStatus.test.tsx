// @vitest-environment jsdom
import { cleanup, screen } from '@testing-library/react';
import { afterEach, expect, test, vi } from 'vitest';
import { useSheetsStore } from '../../../stores/sheetsStore';
import { useSheetStore } from '../../../stores/sheetStore';
import { renderPage } from '../../../testing/renderPage';
import { showBit } from './activeBit';

afterEach(() => {
  cleanup();
  vi.restoreAllMocks();
  vi.unstubAllGlobals();
});

test('a bit that is flipped is shown before the line that tells of it', async () => {
  vi.spyOn(HTMLElement.prototype, 'clientWidth', 'get').mockReturnValue(1280);
  vi.spyOn(HTMLElement.prototype, 'clientHeight', 'get').mockReturnValue(900);
  useSheetsStore.getState().reset();
  useSheetsStore.getState().addSheet();
  renderPage('/tools/words');
  const field = screen.getAllByRole<HTMLInputElement>('textbox', { name: 'Value' })[0]!;
  const told = () => screen.getAllByRole('status').map((line) => line.textContent);
  expect(field.value).toBe('0');

  vi.stubGlobal('IS_REACT_ACT_ENVIRONMENT', false);
  useSheetStore.getState().toggleWordBit(0, 64, 37);
  showBit({ width: 64, index: 0, bit: 37, isSet: true, signed: false });
  // No frame comes before the microtasks of a task are through.
  for (let microtask = 0; microtask < 20; microtask++) await Promise.resolve();
  expect(field.value).toBe('137438953472');
  expect(told().join()).not.toContain('bit 37');
  await vi.waitFor(() => expect(told().join()).toContain('bit 37'));
});
