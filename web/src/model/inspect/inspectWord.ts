import { bytesOf } from '../code/codeForms';
import { bitLines } from './bitLines';
import { bytePairs, utf8Text } from './byteTexts';
import { conventionLines } from './conventionLines';
import { floatLines } from './floatLines';
import { inspectedFormats } from './inspectedFormats';
import { type InspectedLine, line } from './inspectedLine';

/** Readings that belong together. */
export interface InspectedSection {
  readonly id: 'number' | 'convention' | 'float' | 'bits';
  /** Of a float's format. */
  readonly name?: string;
  readonly lines: readonly InspectedLine[];
}

/**
 * Everything that a word can be read as, a line for each reading; what does not apply to its width or value is left out.
 * @param word - without sign
 * @param width - bits in the word: a power of two, at least 8
 */
export function inspectWord(word: bigint, width: number): InspectedSection[] {
  const sections: InspectedSection[] = [
    { id: 'number', lines: numberLines(word, width) },
    { id: 'convention', lines: conventionLines(word, width) },
    ...inspectedFormats(width).map((format) => ({
      id: 'float' as const,
      name: format.name,
      lines: floatLines(word, format),
    })),
    { id: 'bits', lines: bitLines(word, width) },
  ];
  return sections.filter(({ lines }) => lines.length > 0);
}

function numberLines(word: bigint, width: number): InspectedLine[] {
  const most = bytesOf(word, width, 'most');
  const least = bytesOf(word, width, 'least');
  const isOneByte = width === 8;
  return [
    ...line('unsigned', `${word}`),
    ...line('signed', `${BigInt.asIntN(width, word)}`),
    ...line('hexadecimal', `0x${word.toString(16).padStart(width / 4, '0')}`),
    ...line('bytesMost', isOneByte ? undefined : bytePairs(most)),
    ...line('bytesLeast', isOneByte ? undefined : bytePairs(least)),
    ...line('textMost', utf8Text(most)),
    ...line('textLeast', isOneByte ? undefined : utf8Text(least)),
  ];
}
