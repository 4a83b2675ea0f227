/**
 * Reads one word of a wide integer. Does no range check: bits beyond the top read as zero.
 * @param value - the whole integer, not negative
 * @param width - bits in the word
 * @param index - counted from 0 at the least significant end
 * @returns the word without sign, below 2 ** width
 */
export function readWord(value: bigint, width: number, index: number): bigint {
  return BigInt.asUintN(width, value >> BigInt(width * index));
}

/**
 * Writes one word of a wide integer and leaves every other bit as it is. Does no range check.
 * @param word - masked to `width`, so a negative number is stored in two's complement
 * @returns the whole integer after the write
 */
export function writeWord(value: bigint, width: number, index: number, word: bigint): bigint {
  const changedBits = readWord(value, width, index) ^ BigInt.asUintN(width, word);
  return value ^ (changedBits << BigInt(width * index));
}

/** How many whole words of a width a value has; 0 for a 32-bit block of an 8- or 16-bit value. */
export function wordCount(resolution: number, width: number): number {
  return Math.floor(resolution / width);
}
