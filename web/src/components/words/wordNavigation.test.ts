import { expect, test } from 'vitest';
import type { Direction } from '../../commands/wordCommands';
import { definitionsFor } from '../../model/sheet/numberDefinitions';
import { sheetGeometry } from './layout/sheetGeometry';
import { neighbour } from './wordNavigation';

const definitions = definitionsFor(64);
const { rows } = sheetGeometry({ resolution: 64, definitions, converters: [], viewWidth: 1200, charWidth: 7 });

test.each<[string, number, Direction, string | undefined, number]>([
  ['integer:8', 3, 'left', 'integer:8', 4],
  ['integer:8', 3, 'right', 'integer:8', 2],
  ['integer:8', 7, 'left', undefined, 0],
  ['integer:8', 0, 'right', undefined, 0],
  ['integer:64', 0, 'down', 'integer:32', 0],
  ['integer:64', 0, 'up', undefined, 0],
  ['integer:16', 2, 'up', 'integer:32', 1],
  ['integer:16', 2, 'down', 'integer:8', 4],
  ['integer:8', 3, 'down', 'color32:32', 0],
  ['color32:32', 1, 'up', 'integer:8', 4],
  ['color32:32', 1, 'down', undefined, 0],
  ['integer:4', 0, 'up', undefined, 0],
])('from %s %i %s', (rowKey, index, direction, toKey, toIndex) => {
  const expected = toKey === undefined ? undefined : { rowKey: toKey, index: toIndex };
  expect(neighbour(rows, rowKey, index, direction)).toEqual(expected);
});
