import { bytesOf, CODE_FORMS } from '../code/codeForms';
import { type InspectedLine, line } from './inspectedLine';

/** The farthest time that a Date holds, in milliseconds from 1970. */
const FARTHEST_TIME = 8_640_000_000_000_000n;
const MAC_BITS = 48;

/** What a word is by convention: times and addresses. @param width - bits in the word; few have such readings */
export function conventionLines(word: bigint, width: number): InspectedLine[] {
  if (width === 32) return [...timeLines(word, width), ...line('ipv4', written('ipv4', word))];
  if (width === 64) return [...timeLines(word, width), ...line('mac', macAddress(word))];
  if (width === 128) return [...line('ipv6', written('ipv6', word)), ...line('uuid', written('uuid', word))];
  return [];
}

/** Unix times count from 1970 in both directions; where no sign is meant, the top bit leads further on. */
function timeLines(word: bigint, width: number): InspectedLine[] {
  const signed = BigInt.asIntN(width, word);
  return [
    ...line('unixSeconds', unixTime(signed * 1000n)),
    ...line('unixSecondsUnsigned', signed < 0n ? unixTime(word * 1000n) : undefined),
    ...line('unixMilliseconds', unixTime(signed)),
    ...line('unixMillisecondsUnsigned', signed < 0n ? unixTime(word) : undefined),
  ];
}

/** @param milliseconds - from 1970 @returns the time in UTC, as ISO 8601 writes it; undefined beyond what a Date holds */
function unixTime(milliseconds: bigint): string | undefined {
  if (milliseconds > FARTHEST_TIME || milliseconds < -FARTHEST_TIME) return undefined;
  return new Date(Number(milliseconds)).toISOString().replace('.000Z', 'Z');
}

/** Of 48 bits where the 16 above are not set, else of 64. */
function macAddress(word: bigint): string {
  const bits = word >> BigInt(MAC_BITS) === 0n ? MAC_BITS : 64;
  return bytesOf(word, bits, 'most')
    .map((byte) => byte.toString(16).padStart(2, '0'))
    .join(':');
}

function written(form: string, word: bigint): string | undefined {
  const { write, bits } = CODE_FORMS.find(({ id }) => id === form)!;
  return write(word, bits!, 'most');
}
