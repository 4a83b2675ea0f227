import { failure, type Result, success } from '../result';
import { encodeFloatText, type FloatText } from './floatText';

/** Which item of a list is the most significant: its first or its last. */
export type ItemOrder = 'first' | 'last';

/** Width in bits of a color's reading that says nothing about alpha, which it then takes for opaque. */
export const OPAQUE_BITS = 24;

export type ReadingKind =
  | 'number'
  | 'words'
  | 'dump'
  | 'register'
  | 'base64'
  | 'base64url'
  | 'base58'
  | 'base32'
  | 'uuid'
  | 'ipv4'
  | 'ipv6'
  | 'mac'
  | 'color'
  | 'float'
  | 'quoted'
  | 'text';

/** One way to understand a text: as one number, as items of equal width, or as a float, whose bits depend on the word. */
export interface Reading {
  readonly kind: ReadingKind;
  /** What distinguishes readings of one kind: a base, a register's name. */
  readonly detail?: string;
  /** In the order of the text. Each is below 2 ** itemBits; only one that stands alone may be negative. */
  readonly items: readonly bigint[];
  /** Width of each item in bits, as the text suggests it. */
  readonly itemBits: number;
  readonly order: ItemOrder;
  readonly float?: FloatText;
}

/** @param value - may be negative */
export function numberReading(kind: ReadingKind, value: bigint, itemBits: number, detail?: string): Reading {
  return { kind, items: [value], itemBits, order: 'first', ...(detail !== undefined && { detail }) };
}

export function bytesReading(kind: ReadingKind, bytes: Iterable<number>, order: ItemOrder = 'first'): Reading {
  return { kind, items: Array.from(bytes, BigInt), itemBits: 8, order };
}

/** Bits of a number without leading zeros; 1 for zero. */
export function bitLength(value: bigint): number {
  return value.toString(2).length;
}

/** The number that the items make up in an order of significance. */
function joined({ items, itemBits }: Reading, order: ItemOrder): bigint {
  if (items.length === 1) return items[0]!;
  const digits = items.map((item) => item.toString(16).padStart(itemBits / 4, '0'));
  return BigInt(`0x${(order === 'first' ? digits : digits.reverse()).join('')}`);
}

/**
 * The word that a reading gives.
 * @param width - bits in the word
 * @returns the word without sign, or the reason why it does not fit
 */
export function wordOf(reading: Reading, width: number, order = reading.order): Result<bigint> {
  if (reading.float) return encodeFloatText(reading.float, width);
  const value = joined(reading, order);
  const fits = value < 0n ? -value <= 1n << BigInt(width - 1) : value >> BigInt(width) === 0n;
  if (fits) return success(BigInt.asUintN(width, value));
  const bytes = (reading.items.length * reading.itemBits) / 8;
  const inBytes = reading.items.length > 1 && bytes * 8 > width && width % 8 === 0;
  const size = inBytes ? `${bytes} bytes` : `${bitsNeeded(reading, order)} bits`;
  return failure(`${size}, room for ${inBytes ? width / 8 : width}`);
}

/** How wide a word must be to hold the reading's value, in bits; 0 for a float, which suits every width. */
export function bitsNeeded(reading: Reading, order = reading.order): number {
  if (reading.float) return 0;
  const value = joined(reading, order);
  return value < 0n ? bitLength(-value - 1n) + 1 : bitLength(value);
}
