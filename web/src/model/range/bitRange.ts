import { bitsBetween } from '../operations/bitOperations';

/** Bits of a value that follow each other, both ends included, counted from 0 at the least significant end. */
export interface BitRange {
  readonly hi: number;
  readonly lo: number;
}

/** The range from one bit to another, in any order. */
export function rangeBetween(a: number, b: number): BitRange {
  return { hi: Math.max(a, b), lo: Math.min(a, b) };
}

export function rangeWidth({ hi, lo }: BitRange): number {
  return hi - lo + 1;
}

/** A one for each bit of the range. */
export function rangeMask({ hi, lo }: BitRange): bigint {
  return bitsBetween(lo, hi);
}

/** The bits of a range as a number without sign. */
export function readRange(value: bigint, range: BitRange): bigint {
  return BigInt.asUintN(rangeWidth(range), value >> BigInt(range.lo));
}

/** Puts a number into a range and leaves every other bit as it is. @param bits - cut to the range; may be negative */
export function writeRange(value: bigint, range: BitRange, bits: bigint): bigint {
  return value ^ ((readRange(value, range) ^ BigInt.asUintN(rangeWidth(range), bits)) << BigInt(range.lo));
}

export function invertRange(value: bigint, range: BitRange): bigint {
  return value ^ rangeMask(range);
}

export function holds(outer: BitRange, { hi, lo }: BitRange): boolean {
  return hi <= outer.hi && lo >= outer.lo;
}

/** The bits that two ranges share. */
export function sharedBits(a: BitRange, b: BitRange): BitRange | undefined {
  const [hi, lo] = [Math.min(a.hi, b.hi), Math.max(a.lo, b.lo)];
  return hi >= lo ? { hi, lo } : undefined;
}

/** The range as it is written in manuals: "[23:12]", or "[37]" for one bit. */
export function writtenRange({ hi, lo }: BitRange): string {
  return hi === lo ? `[${hi}]` : `[${hi}:${lo}]`;
}
