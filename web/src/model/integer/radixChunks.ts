/*
 * Long numbers are taken apart, and put together, in chunks of digits that a JavaScript number holds exactly.
 * Halving by powers of a chunk needs far fewer long divisions than going digit by digit.
 */
export interface RadixChunks {
  readonly base: number;
  /** Digits in a chunk. */
  readonly digits: number;
  /** What `chunkPower` found so far, by the count of chunks. */
  readonly powers: Map<number, bigint>;
}

const cache: (RadixChunks | undefined)[] = [];

/** Cached for each base. */
export function radixChunks(base: number): RadixChunks {
  return (cache[base] ??= { base, digits: Math.floor(53 / Math.log2(base)), powers: new Map() });
}

/** What a digit is worth that has `count` chunks of digits after it. Kept for the next time. */
export function chunkPower({ base, digits, powers }: RadixChunks, count: number): bigint {
  const known = powers.get(count);
  if (known !== undefined) return known;
  const power = BigInt(base) ** BigInt(digits * count);
  powers.set(count, power);
  return power;
}
