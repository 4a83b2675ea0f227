/*
 * Operations on one word that have no button. Every `word` is below 2 ** width, without sign, and so is every result.
 */

/** Reverses the order of the bytes. @param width - in bits, a multiple of 8 */
export function swapBytes(word: bigint, width: number): bigint {
  const pairs = word
    .toString(16)
    .padStart(width / 4, '0')
    .match(/../g)!;
  return BigInt(`0x${pairs.reverse().join('')}`);
}

/** Reverses the order of the bits. */
export function reverseBits(word: bigint, width: number): bigint {
  return BigInt(`0b${[...word.toString(2).padStart(width, '0')].reverse().join('')}`);
}

/** Moves every bit up, and those that leave the word at the top come in at the bottom. @param count - below the width */
export function rotateLeft(word: bigint, width: number, count: number): bigint {
  return BigInt.asUintN(width, word << BigInt(count)) | (word >> BigInt(width - count));
}

/** The Gray code of a number: two that follow each other differ in one bit. */
export function toGray(word: bigint): bigint {
  return word ^ (word >> 1n);
}

/** The number that a Gray code stands for. */
export function fromGray(word: bigint, width: number): bigint {
  let number = word;
  for (let shift = 1; shift < width; shift *= 2) number ^= number >> BigInt(shift);
  return number;
}

/** A word with ones from one bit to another, both included, in any order. */
export function bitsBetween(from: number, to: number): bigint {
  const count = BigInt(Math.abs(from - to) + 1);
  return ((1n << count) - 1n) << BigInt(Math.min(from, to));
}

/** Repeats a pattern from the least significant end. @param bits - width of the pattern */
export function fillWith(pattern: bigint, bits: number, width: number): bigint {
  let filled = pattern;
  for (let done = bits; done < width; done *= 2) filled |= filled << BigInt(done);
  return BigInt.asUintN(width, filled);
}
