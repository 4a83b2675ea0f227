import { expect, test } from 'vitest';
import {
  definitionLabel,
  definitionsFor,
  definitionShortLabel,
  type NumberDefinition,
  selectableDefinitions,
  shownDefinitions,
  withVisibility,
} from './numberDefinitions';

const names = (definitions: readonly NumberDefinition[]) => definitions.map(definitionShortLabel);

test('rows are the integers from the widest down, then the colours, all visible', () => {
  const rows = definitionsFor(64);
  expect(names(rows)).toEqual(['I64', 'I32', 'I16', 'I8', 'C32']);
  expect(rows.every((row) => row.visible)).toBe(true);
  expect(names(definitionsFor(8))).toEqual(['I8', 'C32']);
});

test('a row keeps its visibility when the width of the sheet changes, and other rows are dropped', () => {
  const before: NumberDefinition[] = [
    { type: 'integer', bits: 16, visible: false },
    { type: 'integer', bits: 128, visible: false },
    { type: 'float', bits: 32, visible: false },
    { type: 'color32', bits: 32, visible: false },
  ];
  expect(definitionsFor(32, before)).toEqual([
    { type: 'integer', bits: 32, visible: true },
    { type: 'integer', bits: 16, visible: false },
    { type: 'integer', bits: 8, visible: true },
    { type: 'color32', bits: 32, visible: false },
  ]);
});

test('hiding a row leaves the other rows and the list before as they are', () => {
  const before = definitionsFor(32);
  const after = withVisibility(before, { type: 'integer', bits: 8 }, false);
  expect(names(shownDefinitions(after))).toEqual(['I32', 'I16', 'C32']);
  expect(names(shownDefinitions(before))).toEqual(['I32', 'I16', 'I8', 'C32']);
  expect(withVisibility(after, { type: 'integer', bits: 8 }, true)).toEqual(before);
});

test('the full-width row cannot be hidden or chosen', () => {
  const rows = definitionsFor(32);
  expect(withVisibility(rows, { type: 'integer', bits: 32 }, false)).toEqual(rows);
  expect(names(selectableDefinitions(rows))).toEqual(['I16', 'I8', 'C32']);
});

test('a hidden row that becomes the full-width one is shown, and hidden again in a wider sheet', () => {
  const hidden = withVisibility(definitionsFor(64), { type: 'integer', bits: 32 }, false);
  const narrow = definitionsFor(32, hidden);
  expect(names(shownDefinitions(narrow))).toContain('I32');
  expect(names(shownDefinitions(definitionsFor(64, narrow)))).not.toContain('I32');
});

test.each([
  { type: 'integer', bits: 64, label: 'Int 64', short: 'I64' },
  { type: 'color32', bits: 32, label: 'Color 32', short: 'C32' },
  { type: 'float', bits: 16, label: '16-bit float', short: '16-bit float' },
] as const)('$type of $bits bits is labelled $label', ({ type, bits, label, short }) => {
  expect(definitionLabel({ type, bits })).toBe(label);
  expect(definitionShortLabel({ type, bits })).toBe(short);
});
