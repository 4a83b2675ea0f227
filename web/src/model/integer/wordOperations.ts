/*
 * Operations on one word. Every `word` is below 2 ** width, without sign, and so is every result.
 * Shift counts are in bits and not negative; a count of the width or more moves every bit out.
 */

/** Shifts left; bits leaving the word are dropped. */
export function shiftLeft(word: bigint, width: number, count: number): bigint {
  return BigInt.asUintN(width, word << shiftCount(width, count));
}

/** Shifts right and fills with the top bit, whether the word is shown signed or not. */
export function shiftRight(word: bigint, width: number, count: number): bigint {
  return BigInt.asUintN(width, BigInt.asIntN(width, word) >> shiftCount(width, count));
}

/** Shifts right and fills with zeros. */
export function shiftRightUnsigned(word: bigint, width: number, count: number): bigint {
  return word >> shiftCount(width, count);
}

// The cap keeps an absurd count from asking for an integer of gigabytes.
function shiftCount(width: number, count: number): bigint {
  return BigInt(Math.min(count, width));
}

/** Inverts every bit. */
export function bitwiseNot(word: bigint, width: number): bigint {
  return BigInt.asUintN(width, ~word);
}

/** The word with every bit set. */
export function allBits(width: number): bigint {
  return (1n << BigInt(width)) - 1n;
}

/**
 * A random word for trying things out; not fit for secrets.
 * Draws 32 bits at a time, most significant first, then once for the bits that are left over, if any.
 * @param random - gives numbers from 0 up to, not including, 1
 */
export function randomWord(width: number, random: () => number = Math.random): bigint {
  let word = 0n;
  for (let left = width; left > 0; left -= 32) {
    const bits = Math.min(left, 32);
    word = (word << BigInt(bits)) | BigInt(Math.floor(random() * 2 ** bits));
  }
  return word;
}
