import { parseInteger } from './parseInteger';

/** What a text that a word refused would be elsewhere. */
export interface Reading {
  readonly base: number;
  /** Bits of the word that has room for it. */
  readonly width: number;
  /** To store, without sign. */
  readonly value: bigint;
}

const PREFIXED_BASES: Readonly<Record<string, number>> = { '0b': 2, '0o': 8, '0x': 16 };
/** What digits without a prefix are usually meant in. */
const USUAL_BASES = [10, 16];
/** No sheet has room for more digits, in whatever base. */
const LONGEST = 1024;
const INSIGNIFICANT = /^-?(0[box])?0*/i;

/**
 * Finds where a text would fit that was refused: in another base of the same word, by its prefix or its digits, and in a
 * wider word.
 * @param base - that it was refused in
 * @param wider - widths that the word could be given instead, the narrowest first
 * @returns one reading in the word as it is and one in a wider word, as far as there are such readings
 */
export function otherReadings(
  text: string,
  base: number,
  width: number,
  signed: boolean,
  wider: readonly number[],
): Reading[] {
  if (text.trim().replace(INSIGNIFICANT, '').length > LONGEST) return [];
  const prefixed = PREFIXED_BASES[text.trim().slice(0, 2).toLowerCase()];
  const others = (prefixed === undefined ? USUAL_BASES : [prefixed]).filter((each) => each !== base);
  const here = firstThatFits(
    others.map((each) => ({ base: each, width, signed })),
    text,
  );
  const widerBases = here.length > 0 ? [base] : [base, ...others];
  // A number that is wider than its sheet is no negative one of it.
  const inWider = widerBases.flatMap((each) => wider.map((bits) => ({ base: each, width: bits, signed: false })));
  return [...here, ...firstThatFits(inWider, text)];
}

interface Place {
  base: number;
  width: number;
  signed: boolean;
}

function firstThatFits(places: readonly Place[], text: string): Reading[] {
  for (const { base, width, signed } of places) {
    const read = parseInteger(text, base, width, signed);
    if (read.ok) return [{ base, width, value: read.value }];
  }
  return [];
}
