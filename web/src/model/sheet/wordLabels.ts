/** The word's number as the user counts, from 1. */
export function wordNumber(index: number): string {
  return `${index + 1}`;
}

/** Width and S for signed or U for unsigned, such as 32U. */
export function wordSignLabel(width: number, signed: boolean): string {
  return `${width}${signed ? 'S' : 'U'}`;
}

/** Which half of the next wider word it is, with that word's width in bits, such as LO:64. */
export function wordHalfLabel(width: number, index: number): string {
  return `${index % 2 === 0 ? 'LO' : 'HI'}:${width * 2}`;
}
