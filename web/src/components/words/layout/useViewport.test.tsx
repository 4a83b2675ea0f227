// @vitest-environment jsdom
import { act, cleanup, render } from '@testing-library/react';
import { afterEach, beforeEach, expect, test, vi } from 'vitest';
import { usePixelRatio } from './useViewport';

const shown: number[] = [];

function Ratio() {
  shown.push(usePixelRatio());
  return null;
}

beforeEach(() => {
  shown.length = 0;
  vi.spyOn(navigator, 'vendor', 'get').mockReturnValue('Apple Computer, Inc.');
  vi.stubGlobal('matchMedia', () => ({ addEventListener() {}, removeEventListener() {} }));
  vi.stubGlobal('innerWidth', 800);
});
afterEach(() => {
  cleanup();
  vi.restoreAllMocks();
  vi.unstubAllGlobals();
});

test('the zoom of a WebKit window counts, which is asked for its size once for each change of it', () => {
  const outerWidth = vi.spyOn(window, 'outerWidth', 'get').mockReturnValue(800);
  const { rerender } = render(<Ratio />);
  outerWidth.mockClear();
  rerender(<Ratio />);
  expect(outerWidth).not.toHaveBeenCalled();
  outerWidth.mockReturnValue(1600);
  act(() => void dispatchEvent(new Event('resize')));
  rerender(<Ratio />);
  expect(outerWidth).toHaveBeenCalledTimes(1);
  expect(shown.at(-1)).toBe(2);
});

test('a zoom that came while nobody looked is seen', () => {
  const outerWidth = vi.spyOn(window, 'outerWidth', 'get').mockReturnValue(800);
  render(<Ratio />).unmount();
  outerWidth.mockReturnValue(400);
  render(<Ratio />);
  expect(shown.at(-1)).toBe(0.5);
});
