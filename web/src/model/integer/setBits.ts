/** The numbers of the bits that are set, the lowest first, counted from 0. @param value - not negative */
export function setBits(value: bigint): number[] {
  const digits = value.toString(2);
  const bits: number[] = [];
  for (let place = digits.length - 1; place >= 0; place--) {
    if (digits[place] === '1') bits.push(digits.length - 1 - place);
  }
  return bits;
}

/**
 * The next bit that is set, above or below a place; after the last one the first one comes again.
 * @param value - not negative
 * @param from - the place, counted from 0; where there is none, the search begins at the end that it leaves from
 * @param step - 1 upwards, -1 downwards
 * @returns undefined where no bit is set
 */
export function nextSetBit(value: bigint, from: number | undefined, step: 1 | -1): number | undefined {
  const bits = setBits(value);
  if (step > 0) return bits.find((bit) => from === undefined || bit > from) ?? bits[0];
  return bits.findLast((bit) => from === undefined || bit < from) ?? bits.at(-1);
}
