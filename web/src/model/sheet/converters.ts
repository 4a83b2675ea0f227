import { isBase, LARGEST_BASE, SMALLEST_BASE } from '../integer/digitAlphabets';

/** What an extra text field below a word shows. */
export type Converter = { kind: 'integer'; base: number } | { kind: 'float' };

/** What a sheet without a list of its own shows. */
export const DEFAULT_CONVERTERS: readonly string[] = ['A2', 'A8', 'A16'];

export interface ConverterGroup {
  readonly label: string;
  readonly identifiers: readonly string[];
  /** Columns of the group's grid; absent when it needs no grid. */
  readonly columns?: number;
}

/** What the user can choose from. */
export const CONVERTER_GROUPS: readonly ConverterGroup[] = [
  { label: 'ASCII Alphabet', identifiers: integerIdentifiers(), columns: 6 },
  { label: 'Arithmetic', identifiers: ['FLOAT'] },
];

function integerIdentifiers(): string[] {
  return Array.from({ length: LARGEST_BASE - SMALLEST_BASE + 1 }, (_, offset) => `A${SMALLEST_BASE + offset}`);
}

/**
 * Reads an identifier: a prefix in any letter case, then digits; no digits mean 10.
 * @returns undefined for one to be ignored: an unknown prefix, or a base that no number can be written in
 */
export function parseConverter(identifier: string): Converter | undefined {
  const match = /^([a-z]+)([0-9]*)$/i.exec(identifier);
  if (!match) return undefined;
  const prefix = match[1]!.toUpperCase();
  if (prefix === 'F' || prefix === 'FLOAT') return { kind: 'float' };
  if (prefix !== 'A' && prefix !== 'ASCII') return undefined;
  const base = Number(match[2] || '10');
  return isBase(base) ? { kind: 'integer', base } : undefined;
}

/** The converters of a sheet in its order, ignored identifiers left out. */
export function activeConverters(identifiers: readonly string[] = DEFAULT_CONVERTERS): Converter[] {
  return identifiers.flatMap((identifier) => parseConverter(identifier) ?? []);
}

export function converterLabel(converter: Converter): string {
  switch (converter.kind) {
    case 'integer':
      return `${converter.base}:`;
    case 'float':
      return 'F:';
  }
}

/**
 * Adds an identifier or removes it when it is there already, and sorts. Gives a new list.
 * @param identifiers - absent means the default list
 */
export function toggleConverter(identifiers: readonly string[] | undefined, identifier: string): string[] {
  const before = identifiers ?? DEFAULT_CONVERTERS;
  if (before.includes(identifier)) return sortConverters(before.filter((each) => each !== identifier));
  return sortConverters([...before, identifier]);
}

/** Integer converters by ascending base, then all others in the order they had. Gives a new list. */
export function sortConverters(identifiers: readonly string[]): string[] {
  return identifiers
    .map((identifier) => ({ identifier, rank: sortRank(identifier) }))
    .sort((a, b) => a.rank - b.rank)
    .map(({ identifier }) => identifier);
}

function sortRank(identifier: string): number {
  const converter = parseConverter(identifier);
  return converter?.kind === 'integer' ? converter.base : LARGEST_BASE + 1;
}
