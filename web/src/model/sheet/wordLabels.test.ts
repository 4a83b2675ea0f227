import { expect, test } from 'vitest';
import { wordHalfLabel, wordNumber, wordSignLabel } from './wordLabels';

test('a word header counts from 1, shows the sign and names the half of the wider word', () => {
  expect([wordNumber(0), wordSignLabel(32, false), wordHalfLabel(32, 0)]).toEqual(['1', '32U', 'LO:64']);
  expect([wordNumber(3), wordSignLabel(8, true), wordHalfLabel(8, 3)]).toEqual(['4', '8S', 'HI:16']);
});
