import { i18next } from '../i18n';
import { failure, type Result } from '../model/result';
import { wordOf } from '../model/text/reading';
import { readText } from '../model/text/readText';
import { type BitsTarget, valueOf, widthOf, writeWord } from './focusedWord';

/** Reads a number as it is typed into a range. @returns the bits to store, or why they are none */
export function readNumber(text: string, width: number): Result<bigint> {
  const readings = readText(text);
  const number = readings.ok ? readings.value.find(({ kind }) => kind === 'number') : undefined;
  return number ? wordOf(number, width) : failure(i18next.t('ranges.noNumber'));
}

export function writeNumber(target: BitsTarget, value: bigint): void {
  writeWord(target, value, i18next.t('ranges.steps.write'));
}

export function clearBits(target: BitsTarget): void {
  writeWord(target, 0n, i18next.t('ranges.steps.clear'));
}

export function invertBits(target: BitsTarget): void {
  writeWord(target, BigInt.asUintN(widthOf(target), ~valueOf(target)), i18next.t('ranges.steps.invert'));
}
