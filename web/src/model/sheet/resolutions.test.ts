import { expect, test } from 'vitest';
import { DEFAULT_RESOLUTION, DOCUMENT_RESOLUTIONS, integerWidths, PICKER_RESOLUTIONS } from './resolutions';

test('integer rows go from the full width down to 8 bits', () => {
  expect(integerWidths(64)).toEqual([64, 32, 16, 8]);
  expect(integerWidths(8)).toEqual([8]);
  expect(integerWidths(1024)).toHaveLength(8);
});

test('the picker leaves out the two smallest widths that documents may carry', () => {
  expect(DOCUMENT_RESOLUTIONS).toEqual([8, 16, ...PICKER_RESOLUTIONS]);
  expect(PICKER_RESOLUTIONS).toContain(DEFAULT_RESOLUTION);
});
