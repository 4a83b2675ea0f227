import { failure, type Result, success } from '../result';
import { asWritten, badBaseReason, digitValues, isBase, LARGEST_CASELESS_BASE, readAlphabet } from './digitAlphabets';
import { formatNumber } from './formatInteger';
import { readDigits } from './readDigits';

const PREFIXES = new Map([
  [2, '0b'],
  [8, '0o'],
  [16, '0x'],
]);

/**
 * Reads a word from text that the user typed. Bases 2, 8 and 16 allow their prefix, base 10 a leading minus sign (a
 * minus sign with nothing after it counts as empty input). The value must fit the word: as signed when it is shown
 * signed, in every base.
 * @param width - bits in the word
 * @returns the word to store, without sign: a negative number comes back as its two's complement
 */
export function parseInteger(text: string, base: number, width: number, signed = false): Result<bigint> {
  if (!isBase(base)) return failure(badBaseReason(base));
  const trimmed = text.trim();
  if (trimmed === '') return failure('Empty or invalid input');

  const negative = trimmed.startsWith('-');
  if (negative && base !== 10) return failure(`Negative numbers not supported for base ${base}`);
  const unsigned = negative ? trimmed.slice(1) : trimmed;
  if (unsigned === '') return failure('Empty or invalid input');

  const digits = withoutPrefix(unsigned, base);
  if (digits === '') return failure('Empty input after removing prefix');
  const invalidCharacter = firstInvalidCharacter(digits, base);
  if (invalidCharacter !== undefined) return failure(invalidCharacterReason(invalidCharacter, base));

  const significant = withoutLeadingZeros(digits);
  // Reading and writing millions of digits would take the engine seconds; no word has as many.
  if (significant.length > width)
    return outOfRange(`${negative ? '-' : ''}${asWritten(significant, base)}`, base, width, signed);
  const magnitude = readDigits(significant, base);
  const value = negative ? -magnitude : magnitude;
  const [smallest, largest] = rangeOf(width, signed);
  if (value >= smallest && value <= largest) return success(BigInt.asUintN(width, value));
  return outOfRange(formatNumber(value, base), base, width, signed);
}

function withoutPrefix(text: string, base: number): string {
  const prefix = PREFIXES.get(base);
  return prefix && text.slice(0, prefix.length).toLowerCase() === prefix ? text.slice(prefix.length) : text;
}

/** At least one digit stays. */
function withoutLeadingZeros(digits: string): string {
  let zeros = 0;
  while (zeros < digits.length - 1 && digits.charCodeAt(zeros) === ZERO) zeros++;
  return digits.slice(zeros);
}

const ZERO = '0'.charCodeAt(0);

function firstInvalidCharacter(digits: string, base: number): string | undefined {
  const values = digitValues(base);
  for (let position = 0; position < digits.length; position++) {
    const value = values[digits.charCodeAt(position)] ?? -1;
    if (value < 0) return String.fromCodePoint(digits.codePointAt(position)!);
  }
  return undefined;
}

function invalidCharacterReason(character: string, base: number): string {
  const letterCase = base <= LARGEST_CASELESS_BASE ? 'case insensitive' : 'case sensitive';
  return `Invalid character '${character}' for base ${base}. Valid characters: ${readAlphabet(base)} (${letterCase})`;
}

function rangeOf(width: number, signed: boolean): [smallest: bigint, largest: bigint] {
  return [signed ? -(1n << BigInt(width - 1)) : 0n, (1n << BigInt(signed ? width - 1 : width)) - 1n];
}

function outOfRange(written: string, base: number, width: number, signed: boolean): Result<never> {
  const [min, max] = rangeOf(width, signed).map((each) => formatNumber(each, base));
  return failure(`Value ${written} is out of range. Must be between ${min} and ${max}`);
}
