import { bytesOf } from '../code/codeForms';
import { displayFloat } from '../float/displayFloat';
import { floatFormatFor } from '../float/floatFormats';
import { setBits } from '../integer/setBits';
import { asciiText, bytePairs } from './byteTexts';

/** The most that there is to know of a word at a glance. */
export interface WordSummary {
  readonly setBits: number;
  /** From the top bit down; the whole width for zero, as the trailing ones. */
  readonly leadingZeros: number;
  readonly trailingZeros: number;
  /** Pairs of hexadecimal digits; undefined for a single byte. */
  readonly bytesMost: string | undefined;
  readonly bytesLeast: string | undefined;
  /** A character for each byte, the most significant first. */
  readonly ascii: string;
  /** As the word's float field shows it; undefined where the word has none. */
  readonly float: string | undefined;
}

/** More bytes than this are cut off, the first ones stay. */
const MOST_BYTES = 32;

/** @param width - bits in the word */
export function wordSummary(word: bigint, width: number): WordSummary {
  const bits = setBits(word);
  const bytes = (order: 'most' | 'least') => {
    const all = bytesOf(word, width, order);
    return all.length > MOST_BYTES ? `${bytePairs(all.slice(0, MOST_BYTES))} …` : bytePairs(all);
  };
  const format = floatFormatFor(width);
  return {
    setBits: bits.length,
    leadingZeros: width - 1 - (bits.at(-1) ?? -1),
    trailingZeros: bits[0] ?? width,
    bytesMost: width > 8 ? bytes('most') : undefined,
    bytesLeast: width > 8 ? bytes('least') : undefined,
    ascii: asciiText(bytesOf(word, width, 'most').slice(0, MOST_BYTES)),
    float: format && displayFloat(word, format),
  };
}
