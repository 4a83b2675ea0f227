import { allBits, bitwiseNot, shiftRight, shiftRightUnsigned } from '../integer/wordOperations';
import { failure, type Result, success } from '../result';
import { bitLength, wordOf } from '../text/reading';
import { readText } from '../text/readText';
import { bitsBetween, fillWith, fromGray, reverseBits, rotateLeft, swapBytes, toGray } from './bitOperations';

/** What an operation makes of a word. */
export interface OperationResult {
  readonly word: bigint;
  /** Whether ones left the word, or a carry did. */
  readonly isLossy: boolean;
}

/** A second word: its value, and how wide it was written. */
interface Operand {
  readonly value: bigint;
  readonly bits: number;
}

type Arguments = 'none' | 'count' | 'operand' | 'bits';

interface Operation {
  readonly takes: Arguments;
  /** Gives the result before it is cut to the word's width; a negative one wrapped. */
  readonly apply: (word: bigint, width: number, operand: Operand) => bigint;
  /** Ones that a shift to the right drops. */
  readonly dropped?: (word: bigint, count: number) => bigint;
}

const count = ({ value }: Operand) => Number(value);
const lowBits = (word: bigint, bits: number) => BigInt.asUintN(bits, word);

/** By name, in the order in which they are offered. */
const OPERATIONS: Readonly<Record<string, Operation>> = {
  swap: { takes: 'none', apply: swapBytes },
  rev: { takes: 'none', apply: reverseBits },
  rol: { takes: 'count', apply: (word, width, x) => rotateLeft(word, width, count(x)) },
  ror: { takes: 'count', apply: (word, width, x) => rotateLeft(word, width, (width - count(x)) % width) },
  shl: { takes: 'count', apply: (word, _, { value }) => word << value },
  shr: { takes: 'count', apply: (word, width, x) => shiftRightUnsigned(word, width, count(x)), dropped: lowBits },
  sar: { takes: 'count', apply: (word, width, x) => shiftRight(word, width, count(x)), dropped: lowBits },
  and: { takes: 'operand', apply: (word, _, { value }) => word & value },
  or: { takes: 'operand', apply: (word, _, { value }) => word | value },
  xor: { takes: 'operand', apply: (word, _, { value }) => word ^ value },
  add: { takes: 'operand', apply: (word, _, { value }) => word + value },
  sub: { takes: 'operand', apply: (word, _, { value }) => word - value },
  neg: { takes: 'none', apply: (word, width) => lowBits(-word, width) },
  not: { takes: 'none', apply: bitwiseNot },
  set: { takes: 'bits', apply: (word, _, { value }) => word | value },
  clear: { takes: 'bits', apply: (word, _, { value }) => word & ~value },
  fill: { takes: 'operand', apply: (_, width, { value, bits }) => fillWith(value, bits, width) },
  gray: { takes: 'none', apply: toGray },
  ungray: { takes: 'none', apply: fromGray },
};

const PLACEHOLDERS: Readonly<Record<Arguments, string>> = { none: '', count: 'n', operand: 'x', bits: 'a:b' };

/** The names of all operations with what each takes: nothing, a count n, a word x, or bits a:b. */
export const OPERATION_NAMES: readonly { readonly name: string; readonly placeholder: string }[] = Object.entries(
  OPERATIONS,
).map(([name, { takes }]) => ({ name, placeholder: PLACEHOLDERS[takes] }));

/**
 * The word of another sheet at the same place.
 * @param name - of the sheet
 * @returns undefined where no sheet has this name
 */
export type SheetWord = (name: string) => bigint | undefined;

/**
 * Does what a text such as "ror 7", "set 8:15" or 'xor @"Number B"' says to a word.
 * @param width - bits in the word
 * @returns the result, or what is wrong with the text
 */
export function applyOperation(
  text: string,
  word: bigint,
  width: number,
  sheetWord: SheetWord,
): Result<OperationResult> {
  const [, name = '', rest = ''] = /^(\S+)\s*([^]*)$/.exec(text.trim()) ?? [];
  const operation = Object.hasOwn(OPERATIONS, name.toLowerCase()) ? OPERATIONS[name.toLowerCase()]! : undefined;
  if (!operation) return failure(name === '' ? 'No operation' : `There is no operation "${name}"`);
  const operand = readOperand(operation.takes, rest, width, sheetWord);
  if (!operand.ok) return operand;
  const { value } = operand.value;
  if (operation.apply === swapBytes && width % 8 !== 0) return failure('Only whole bytes can be swapped');
  const exact = operation.apply(word, width, operand.value);
  const dropped = operation.dropped?.(word, Number(value)) ?? 0n;
  const isCut = exact < 0n || exact > allBits(width) || (operation.takes === 'operand' && bitLength(value) > width);
  return success({ word: lowBits(exact, width), isLossy: isCut || dropped !== 0n });
}

function readOperand(takes: Arguments, text: string, width: number, sheetWord: SheetWord): Result<Operand> {
  if (takes === 'none')
    return text === '' ? success({ value: 0n, bits: 1 }) : failure(`Nothing follows here: "${text}"`);
  if (takes === 'count') return readCount(text, width);
  if (takes === 'bits') return readBits(text, width);
  if (text.startsWith('@')) return readSheet(text.slice(1), width, sheetWord);
  return readValue(text, width);
}

function readCount(text: string, width: number): Result<Operand> {
  const value = /^\d{1,6}$/.test(text) ? Number(text) : width;
  return value < width ? success({ value: BigInt(value), bits: width }) : failure(`Count must be 0 to ${width - 1}`);
}

/** Reads one bit's number, or the first and last of several. @returns ones at these bits */
function readBits(text: string, width: number): Result<Operand> {
  const [, first, last = first] = /^(\d{1,6})(?:\s*(?::|\.\.|-)\s*(\d{1,6}))?$/.exec(text) ?? [];
  const [from, to] = [Number(first ?? width), Number(last ?? width)];
  if (from >= width || to >= width) return failure(`Bits must be 0 to ${width - 1}`);
  return success({ value: bitsBetween(from, to), bits: width });
}

function readSheet(text: string, width: number, sheetWord: SheetWord): Result<Operand> {
  const name = text.trim().replace(/^"([^]*)"$/, '$1');
  const value = sheetWord(name);
  return value === undefined ? failure(`There is no sheet "${name}"`) : success({ value, bits: width });
}

const WIDEST_OPERAND = 8192;

/** A value wider than the word is cut to it, which counts as a loss; a negative one wraps. */
function readValue(text: string, width: number): Result<Operand> {
  if (text === '') return failure('A value must follow');
  const readings = readText(text);
  const reading = readings.ok ? readings.value[0]! : undefined;
  if (!reading || reading.kind === 'text') return failure(`"${text.slice(0, 40)}" is no value`);
  const fitting = wordOf(reading, width);
  const read = fitting.ok ? fitting : wordOf(reading, WIDEST_OPERAND);
  if (!read.ok) return read;
  const written = Math.max(reading.items.length * reading.itemBits, bitLength(read.value));
  // Decimal digits say nothing about a width; whole bytes are what is meant.
  const bits = reading.detail === 'base 10' ? Math.ceil(written / 8) * 8 : written;
  return success({ value: read.value, bits });
}
