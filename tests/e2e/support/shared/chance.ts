/** Numbers that look random and are the same in every run with the same seed. */
export class Chance {
  #state: number;

  constructor(seed: number) {
    this.#state = seed >>> 0;
  }

  /** A whole number from 0 to below `limit`, at most 2 ** 32. After George Marsaglia's "Xorshift RNGs" (2003). */
  below(limit: number): number {
    let x = this.#state || 1;
    x ^= x << 13;
    x ^= x >>> 17;
    x ^= x << 5;
    this.#state = x >>> 0;
    return this.#state % limit;
  }

  bits(count: number): bigint {
    let value = 0n;
    for (let done = 0; done < count; done += 32) value = (value << 32n) | BigInt(this.below(2 ** 32));
    return BigInt.asUintN(count, value);
  }

  oneOf<T>(all: readonly T[]): T {
    if (all.length === 0) throw new Error('There is nothing to choose from');
    return all[this.below(all.length)]!;
  }
}
