import { wordCount } from '../integer/wordLayout';
import { integerWidths } from './resolutions';

/** Which words are shown signed, by `signKey`. A missing key means unsigned. */
export type SignMap = ReadonlyMap<string, boolean>;

/** @param index - of the word, counted from 0 */
export function signKey(index: number, width: number): string {
  return `${index}:${width}`;
}

export function isSigned(signs: SignMap, index: number, width: number): boolean {
  return signs.get(signKey(index, width)) ?? false;
}

/** Flips a word between unsigned and signed. Gives a new map. */
export function toggleSign(signs: SignMap, index: number, width: number): SignMap {
  return new Map(signs).set(signKey(index, width), !isSigned(signs, index, width));
}

/**
 * A map that names every word of a resolution as unsigned. Its indices run from 1 to the number of words in the row,
 * so it has no key for word 0, which is unsigned by its absence.
 */
export function filledSignMap(resolution: number): SignMap {
  const signs = new Map<string, boolean>();
  for (const width of integerWidths(resolution).reverse()) {
    for (let index = 1; index <= wordCount(resolution, width); index++) signs.set(signKey(index, width), false);
  }
  return signs;
}
