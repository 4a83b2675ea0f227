import { failure, type Result, success } from '../result';
import { badBaseReason, digitValues, isBase, LARGEST_CASELESS_BASE, readAlphabet } from './digitAlphabets';
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

  const magnitude = readDigits(digits, base);
  return checkRange(negative ? -magnitude : magnitude, base, width, signed);
}

function withoutPrefix(text: string, base: number): string {
  const prefix = PREFIXES.get(base);
  return prefix && text.slice(0, prefix.length).toLowerCase() === prefix ? text.slice(prefix.length) : text;
}

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

function checkRange(value: bigint, base: number, width: number, signed: boolean): Result<bigint> {
  const smallest = signed ? -(1n << BigInt(width - 1)) : 0n;
  const largest = (1n << BigInt(signed ? width - 1 : width)) - 1n;
  if (value >= smallest && value <= largest) return success(BigInt.asUintN(width, value));
  const [written, min, max] = [value, smallest, largest].map((each) => formatNumber(each, base));
  return failure(`Value ${written} is out of range. Must be between ${min} and ${max}`);
}
