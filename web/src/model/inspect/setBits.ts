/** The numbers of the bits that are set, the lowest first, counted from 0. @param value - not negative */
export function setBits(value: bigint): number[] {
  const digits = value.toString(2);
  const bits: number[] = [];
  for (let place = digits.length - 1; place >= 0; place--) {
    if (digits[place] === '1') bits.push(digits.length - 1 - place);
  }
  return bits;
}
