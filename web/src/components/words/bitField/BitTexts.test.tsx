// @vitest-environment jsdom
import { cleanup, render, screen } from '@testing-library/react';
import { afterEach, expect, test, vi } from 'vitest';
import { i18next } from '../../../i18n';
import { BitTexts } from './BitTexts';

afterEach(cleanup);

test('a bit that changes gets its new name, and no name is looked up twice', () => {
  const lookUp = vi.spyOn(i18next, 't');
  const { rerender } = render(<BitTexts digits="0010" />);
  rerender(<BitTexts digits="0011" />);
  const names = () => screen.getAllByRole('img').map((bit) => bit.ariaLabel);
  expect(names()).toEqual(['bit 3: 0', 'bit 2: 0', 'bit 1: 1', 'bit 0: 1']);
  const asked = lookUp.mock.calls.filter(([key]) => key === ('words.bitName' as never));
  expect(asked).toHaveLength(5);
});
