/*
 * binary16 to binary256 are the interchange formats of IEEE 754-2019, table 3.5. E5M2 and E4M3 have the layouts of
 * Micikevicius et al., "FP8 Formats for Deep Learning" (2022).
 */

import type { BitRange } from '../range/bitRange';

/** A binary floating-point format: one sign bit at the top, then the exponent, then the mantissa. */
export interface FloatFormat {
  readonly name: string;
  readonly exponentBits: number;
  readonly mantissaBits: number;
  readonly bias: number;
}

export type FloatStandard = 'IEEE754' | 'E5M2' | 'E4M3';

/** The widest word that has a float view, in bits. */
export const WIDEST_FLOAT = 256;

/** The widest word whose float view can be edited, in bits. */
export const WIDEST_EDITABLE_FLOAT = 128;

const FORMATS: Record<string, FloatFormat> = {
  E5M2: { name: 'E5M2', exponentBits: 5, mantissaBits: 2, bias: 15 },
  E4M3: { name: 'E4M3', exponentBits: 4, mantissaBits: 3, bias: 7 },
  'IEEE754-16': { name: 'IEEE754-16', exponentBits: 5, mantissaBits: 10, bias: 15 },
  'IEEE754-32': { name: 'IEEE754-32', exponentBits: 8, mantissaBits: 23, bias: 127 },
  'IEEE754-64': { name: 'IEEE754-64', exponentBits: 11, mantissaBits: 52, bias: 1023 },
  'IEEE754-128': { name: 'IEEE754-128', exponentBits: 15, mantissaBits: 112, bias: 16383 },
  'IEEE754-256': { name: 'IEEE754-256', exponentBits: 19, mantissaBits: 236, bias: 262143 },
};

/** The standard that a word of a width is shown in. E5M2 has to be asked for by name. */
export function floatStandardFor(width: number): FloatStandard {
  return width === 8 ? 'E4M3' : 'IEEE754';
}

/**
 * @param width - bits in the word
 * @returns undefined where the standard has no format of this width, so the word has no float view
 */
export function floatFormatFor(width: number, standard = floatStandardFor(width)): FloatFormat | undefined {
  if (standard === 'IEEE754') return FORMATS[`IEEE754-${width}`];
  return width === 8 ? FORMATS[standard] : undefined;
}

export interface FloatField {
  readonly label: string;
  readonly bits: number;
  /** A CSS colour. */
  readonly color: string;
}

/** The part of a float that a bit belongs to: its sign, exponent or mantissa. */
export function floatFieldAt({ exponentBits, mantissaBits }: FloatFormat, bit: number): BitRange {
  const sign = mantissaBits + exponentBits;
  if (bit >= sign) return { hi: sign, lo: sign };
  return bit >= mantissaBits ? { hi: sign - 1, lo: mantissaBits } : { hi: mantissaBits - 1, lo: 0 };
}

/** The parts of a float's bits, from the top bit down. Words wider than 8 bits have room for the parts' widths. */
export function floatFields({ exponentBits, mantissaBits }: FloatFormat): FloatField[] {
  const wide = 1 + exponentBits + mantissaBits > 8;
  const label = (name: string, bits: number) => (wide ? `${name} (${bits})` : name);
  return [
    { label: 'S', bits: 1, color: '#d32f2f' },
    { label: label('Exponent', exponentBits), bits: exponentBits, color: '#1976d2' },
    { label: label('Mantissa', mantissaBits), bits: mantissaBits, color: '#be5693ff' },
  ];
}
