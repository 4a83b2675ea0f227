import { describe, expect, test } from 'vitest';
import {
  activeConverters,
  CONVERTER_GROUPS,
  converterLabel,
  DEFAULT_CONVERTERS,
  parseConverter,
  sortConverters,
  toggleConverter,
} from './converters';

describe('parseConverter', () => {
  test.each([
    { identifier: 'A16', label: '16:' },
    { identifier: 'a2', label: '2:' },
    { identifier: 'ASCII', label: '10:' },
    { identifier: 'Ascii64', label: '64:' },
    { identifier: 'A', label: '10:' },
    { identifier: 'A016', label: '16:' },
    { identifier: 'F', label: 'F:' },
    { identifier: 'FLOAT', label: 'F:' },
    { identifier: 'float32', label: 'F:' },
  ])('$identifier shows a field labelled $label', ({ identifier, label }) => {
    expect(converterLabel(parseConverter(identifier)!)).toBe(label);
  });

  test.each(['', '16', 'B16', 'AB', 'A-2', 'A2.5', ' A2', 'A1', 'A65', 'A0', 'FLOATS', 'A999999999999999999999'])(
    'ignores %j',
    (identifier) => {
      expect(parseConverter(identifier)).toBeUndefined();
    },
  );
});

test('a sheet without a list shows bases 2, 8 and 16', () => {
  expect(DEFAULT_CONVERTERS).toEqual(['A2', 'A8', 'A16']);
  expect(activeConverters().map(converterLabel)).toEqual(['2:', '8:', '16:']);
});

test('an empty list shows nothing, and unknown identifiers are left out', () => {
  expect(activeConverters([])).toEqual([]);
  expect(activeConverters(['X', 'A3', 'FLOAT'])).toEqual([{ kind: 'integer', base: 3 }, { kind: 'float' }]);
});

test('the picker offers every base in six columns, then the float converter', () => {
  const [alphabet, arithmetic] = CONVERTER_GROUPS;
  expect(alphabet).toMatchObject({ label: 'ASCII Alphabet', columns: 6 });
  expect(alphabet!.identifiers).toHaveLength(63);
  expect([alphabet!.identifiers[0], alphabet!.identifiers.at(-1)]).toEqual(['A2', 'A64']);
  expect(arithmetic).toEqual({ label: 'Arithmetic', identifiers: ['FLOAT'] });
  expect(CONVERTER_GROUPS).toHaveLength(2);
});

test('converters are sorted by base, all others after them in their order', () => {
  expect(sortConverters(['FLOAT', 'A16', 'Z', 'A2', 'ASCII', 'A8'])).toEqual([
    'A2',
    'A8',
    'ASCII',
    'A16',
    'FLOAT',
    'Z',
  ]);
});

test('a click adds a converter in its place and the next one removes it', () => {
  const added = toggleConverter(undefined, 'A3');
  expect(added).toEqual(['A2', 'A3', 'A8', 'A16']);
  expect(toggleConverter(added, 'A3')).toEqual(['A2', 'A8', 'A16']);
  expect(toggleConverter([], 'FLOAT')).toEqual(['FLOAT']);
  expect(DEFAULT_CONVERTERS).toEqual(['A2', 'A8', 'A16']);
});
