import { type FloatFormat, floatFormatFor } from '../float/floatFormats';

/** A float format that a word's bits can be read in, with what distinguishes its special values. */
export interface InspectedFormat {
  /** As its users call it. */
  readonly name: string;
  readonly format: FloatFormat;
  /** Has no infinity: an exponent of all ones stands for numbers, too, and only a mantissa of all ones for NaN. */
  readonly hasNumbersAtTop?: boolean;
  /** The top bit of a NaN's mantissa distinguishes quiet from signalling, as IEEE 754-2019 has it in section 6.2.1. */
  readonly hasQuietBit?: boolean;
}

const E4M3 = floatFormatFor(8, 'E4M3')!;
const E5M2 = floatFormatFor(8, 'E5M2')!;

/*
 * OCP E4M3 and E5M2 are those of the Open Compute Project's "OCP 8-bit Floating Point Specification (OFP8)", revision 1.0
 * (2023). bfloat16 is the upper half of a binary32, as in Intel's "BFLOAT16 - Hardware Numerics Definition" (2018).
 */
const EIGHT_BITS: readonly InspectedFormat[] = [
  { name: 'E4M3 with infinity, as in the float field', format: E4M3 },
  { name: 'OCP E4M3', format: E4M3, hasNumbersAtTop: true },
  { name: 'OCP E5M2', format: E5M2 },
];

export const BFLOAT16: InspectedFormat = {
  name: 'bfloat16',
  format: { name: 'bfloat16', exponentBits: 8, mantissaBits: 7, bias: 127 },
  hasQuietBit: true,
};

/** Every float format of a width in bits, the one that the word's float field shows first; none for other widths. */
export function inspectedFormats(width: number): readonly InspectedFormat[] {
  if (width === 8) return EIGHT_BITS;
  const format = floatFormatFor(width);
  if (!format) return [];
  const binary: InspectedFormat = { name: `IEEE 754 binary${width}`, format, hasQuietBit: true };
  return width === 16 ? [binary, BFLOAT16] : [binary];
}
