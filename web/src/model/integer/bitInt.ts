import { readWord, writeWord } from './wordLayout';
import { bitwiseNot, randomWord, shiftLeft, shiftRight, shiftRightUnsigned } from './wordOperations';

/**
 * A value of a fixed number of bits. It never changes: every operation gives a new one, so two of them can share
 * a store's history and comparing bigints finds an unchanged word.
 *
 * Words are addressed by width (bits, any positive number) and index (from 0 at the least significant end).
 * A word that is not wholly inside the value raises a RangeError with a sentence for the user.
 */
export class BitInt {
  /** Never negative, always below 2 ** resolution. */
  readonly value: bigint;
  /** Width in bits. */
  readonly resolution: number;

  /** @param value - masked to the resolution; a negative number becomes its two's complement */
  constructor(value: bigint, resolution: number) {
    this.value = BigInt.asUintN(resolution, value);
    this.resolution = resolution;
  }

  /** The same value at another width; when it is smaller, the high bits are dropped. */
  withResolution(resolution: number): BitInt {
    return new BitInt(this.value, resolution);
  }

  /** Another value at the same width. */
  withValue(value: bigint): BitInt {
    return new BitInt(value, this.resolution);
  }

  getWord(width: number, index: number): bigint {
    this.checkWord('extraction', width, index);
    return readWord(this.value, width, index);
  }

  /** @param word - masked to `width` */
  setWord(width: number, index: number, word: bigint): BitInt {
    this.checkWord('setting', width, index);
    return this.withValue(writeWord(this.value, width, index, word));
  }

  /** @param bit - counted from 0 at the least significant end of the word */
  toggleBit(width: number, index: number, bit: number): BitInt {
    this.checkWord('setting', width, index);
    checkBit(width, bit);
    return this.withValue(this.value ^ (1n << BigInt(width * index + bit)));
  }

  /** Bits leaving the word are dropped. */
  shiftLeft(width: number, index: number, count: number): BitInt {
    return this.setWord(width, index, shiftLeft(this.getWord(width, index), width, count));
  }

  /** Fills with the word's top bit. */
  shiftRight(width: number, index: number, count: number): BitInt {
    return this.setWord(width, index, shiftRight(this.getWord(width, index), width, count));
  }

  /** Fills with zeros. */
  shiftRightUnsigned(width: number, index: number, count: number): BitInt {
    return this.setWord(width, index, shiftRightUnsigned(this.getWord(width, index), width, count));
  }

  not(width: number, index: number): BitInt {
    return this.setWord(width, index, bitwiseNot(this.getWord(width, index), width));
  }

  /** @param random - gives numbers from 0 up to, not including, 1 */
  random(width: number, index: number, random: () => number = Math.random): BitInt {
    return this.setWord(width, index, randomWord(width, random));
  }

  private checkWord(access: 'extraction' | 'setting', width: number, index: number): void {
    if (index < 0) throw new RangeError('Index cannot be negative');
    const first = width * index;
    const last = first + width - 1;
    if (last < this.resolution) return;
    throw new RangeError(
      `Word ${access} would exceed bit resolution. ` +
        `Requested bits ${first}-${last}, but resolution is ${this.resolution} bits`,
    );
  }
}

function checkBit(width: number, bit: number): void {
  if (bit >= 0 && bit < width) return;
  throw new RangeError(`Bit index ${bit} is out of range for ${width}-bit word`);
}
