import { failure, type Result, success } from '../result';
import { type BitRange, rangeBetween } from './bitRange';

const NUMBER = '0x[\\da-f]{1,4}|\\d{1,5}';
/** A bit's number, or its byte's number and its own in it. */
const BIT = `(?:${NUMBER})(?:\\.[0-7])?`;
const BETWEEN = ':|\\.\\.|-|\\+';
/** What `parseRange` reads, as a part of a pattern. */
export const RANGE_PATTERN = `\\[?\\s*${BIT}\\s*(?:(?:${BETWEEN})\\s*${BIT}\\s*)?\\]?`;
const PARTS = new RegExp(`^\\[?\\s*(${BIT})\\s*(?:(${BETWEEN})\\s*(${BIT})\\s*)?\\]?$`, 'i');

/**
 * Reads which bits are meant: one ("37"), the first and last ("23:12"), the lowest and how many ("0x20+8"); "3.7" is bit 7
 * of byte 3. Both ends may come in any order, and brackets around them are allowed.
 * @param resolution - bits of the sheet
 */
export function parseRange(text: string, resolution: number): Result<BitRange> {
  const [, first, between, second] = PARTS.exec(text.trim()) ?? [];
  if (first === undefined) return failure('Such as 37, 23:12, 0x20+8 or 3.7');
  const start = bitNumber(first);
  const end = second === undefined ? start : between === '+' ? start + Number(second) - 1 : bitNumber(second);
  const range = rangeBetween(start, end);
  if (between === '+' && !(end >= start)) return failure('At least one bit');
  return range.hi < resolution ? success(range) : failure(`Sheet has bits 0 to ${resolution - 1}`);
}

function bitNumber(text: string): number {
  const [byte, bit] = text.split('.');
  return bit === undefined ? Number(byte) : Number(byte) * 8 + Number(bit);
}
