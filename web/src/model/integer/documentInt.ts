/**
 * Reads a document's integer: decimal digits, or hexadecimal, octal or binary ones after 0x, 0o or 0b in any letter
 * case. Blanks around a text are ignored and the empty text is 0. Nothing is masked.
 * Throws as BigInt does: a SyntaxError for a text that is no integer, a RangeError for a fractional number.
 */
export function readDocumentInt(raw: string | number): bigint {
  return BigInt(raw);
}

/**
 * Writes an integer as a document holds it: 0x and lower-case hexadecimal digits without leading zeros.
 * @param value - written in full, also when it is wider than the resolution
 * @param resolution - width in bits; a negative value, which a document can bring along and which has no
 *   hexadecimal form that could be read again, is written as its two's complement of this width
 */
export function writeDocumentInt(value: bigint, resolution: number): string {
  const written = value < 0n ? BigInt.asUintN(resolution, value) : value;
  return `0x${written.toString(16)}`;
}
