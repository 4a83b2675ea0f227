import { FLOAT_WIDTHS, isFloatText } from './expectedFloat';
import type { ShownSheet, ShownWord } from './shownWords';

/** What a sheet must show, kept without any of the page's own code. */
export interface ExpectedSheet {
  readonly value: bigint;
  readonly resolution: number;
  /** Such as "0:64": words that are shown signed, counted from 0. */
  readonly signs: ReadonlySet<string>;
  /** Identifiers; undefined for the usual ones. */
  readonly converters: readonly string[] | undefined;
  /** Labels of rows that are not shown. */
  readonly hidden: ReadonlySet<string>;
}

export const USUAL_CONVERTERS = ['A2', 'A8', 'A16'];

const DIGITS = '0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz+/';

/** Labels of the rows that a sheet of a width can show, in their order. */
export function rowsOf(resolution: number): string[] {
  const rows = [];
  for (let bits = resolution; bits >= 8; bits /= 2) rows.push(`Int ${bits}`);
  return [...rows, 'Color 32'];
}

export function wordOf({ value }: ExpectedSheet, bits: number, index: number): bigint {
  return BigInt.asUintN(bits, value >> BigInt(bits * index));
}

export function withWord(sheet: ExpectedSheet, bits: number, index: number, word: bigint): ExpectedSheet {
  const place = BigInt(bits * index);
  const others = sheet.value & ~(((1n << BigInt(bits)) - 1n) << place);
  return { ...sheet, value: others | (BigInt.asUintN(bits, word) << place) };
}

export function isSigned({ signs }: ExpectedSheet, bits: number, index: number): boolean {
  return signs.has(`${index}:${bits}`);
}

/** A word as its field in a base shows it. */
export function digitsOf(word: bigint, base: number, bits: number, signed = false): string {
  if (base === 10) return `${signed ? BigInt.asIntN(bits, word) : word}`;
  let digits = '';
  for (let rest = word; rest > 0n; rest /= BigInt(base)) digits = DIGITS[Number(rest % BigInt(base))]! + digits;
  return digits || '0';
}

/**
 * What a sheet shows and should not, one line each.
 * @param left - float fields that were left since their word changed: they show an integer
 */
export function differences(shown: ShownSheet, sheet: ExpectedSheet, left: ReadonlySet<string>): string[] {
  const rows = rowsOf(sheet.resolution).filter((row, position) => position === 0 || !sheet.hidden.has(row));
  const found = shown.words.flatMap((word) => wordDifferences(word, sheet, left));
  if (shown.words.length === 0) found.push('no word is shown');
  if (shown.rows.join() !== rows.join()) found.push(`rows ${shown.rows.join()} instead of ${rows.join()}`);
  return found;
}

function wordDifferences(shown: ShownWord, sheet: ExpectedSheet, left: ReadonlySet<string>): string[] {
  const name = `${shown.row} word ${shown.number}`;
  const bits = Number(/\d+$/.exec(shown.row)?.[0]);
  const index = shown.number - 1;
  if (bits * shown.number > sheet.resolution) return [`${name} is beyond the sheet`];
  const word = wordOf(sheet, bits, index);
  const found: string[] = [];
  const compare = (what: string, now: unknown, expected: unknown) => {
    const [is, shouldBe] = [String(now), String(expected)];
    if (is !== shouldBe) found.push(`${name}, ${what}: ${is} instead of ${shouldBe}`);
  };
  if (shown.row === 'Color 32') {
    const [red, green, blue, alpha] = [0, 8, 16, 24].map((place) => BigInt.asUintN(8, word >> BigInt(place)));
    const hex = [red, green, blue].map((byte) => byte!.toString(16).padStart(2, '0')).join('');
    const fields = { Red: red, Green: green, Blue: blue, Alpha: alpha, Color: `#${hex}` };
    compare('fields', Object.entries(shown.fields).sort(), Object.entries(fields).sort());
    return found;
  }

  const signed = isSigned(sheet, bits, index);
  compare('header', shown.header, [
    shown.number,
    `${bits}${signed ? 'S' : 'U'}`,
    `${index % 2 ? 'HI' : 'LO'}:${2 * bits}`,
  ]);
  compare('bits', shown.bits, word.toString(2).padStart(bits, '0'));
  const { Float: float, ...fields } = shown.fields;
  const identifiers = sheet.converters ?? USUAL_CONVERTERS;
  const expected = new Map([['Value', digitsOf(word, 10, bits, signed)]]);
  for (const identifier of identifiers.filter((each) => each !== 'FLOAT')) {
    const base = Number(identifier.slice(1));
    expected.set(`Base ${base}`, digitsOf(word, base, bits, signed));
  }
  compare('fields', Object.entries(fields).sort(), [...expected].sort());
  compare('float field', float !== undefined, identifiers.includes('FLOAT') && FLOAT_WIDTHS.includes(bits));
  if (float !== undefined && !isFloatText(float, word, bits) && !(left.has(name) && float === `${word}`))
    found.push(`${name}, Float: ${float} for ${word}`);
  return found;
}
