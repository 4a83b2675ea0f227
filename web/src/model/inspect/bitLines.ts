import { setBits } from '../integer/setBits';
import { fromGray, toGray } from '../operations/bitOperations';
import { type InspectedLine, line } from './inspectedLine';

const MOST_LISTED = 64;

/** What there is to say of a word's single bits. @param width - bits in the word */
export function bitLines(word: bigint, width: number): InspectedLine[] {
  const bits = setBits(word);
  return [
    ...line('setBits', `${bits.length}`),
    ...line('parity', bits.length % 2 === 0 ? 'even' : 'odd'),
    ...line('highestBit', bits.at(-1)?.toString()),
    ...line('lowestBit', bits[0]?.toString()),
    ...line('bitList', bits.length > 0 ? listed(bits) : undefined),
    ...line('powerOfTwo', nearestPower(word)),
    ...line('toGray', hex(toGray(word), width)),
    ...line('fromGray', hex(fromGray(word, width), width)),
  ];
}

function listed(bits: readonly number[]): string {
  const text = bits.slice(0, MOST_LISTED).join(', ');
  return bits.length > MOST_LISTED ? `${text}, …` : text;
}

/** The nearest power of two, the lower of two that are as near, and how far the number is from it. */
function nearestPower(word: bigint): string | undefined {
  if (word === 0n) return undefined;
  const exponent = word.toString(2).length - 1;
  const below = word - (1n << BigInt(exponent));
  const above = (2n << BigInt(exponent)) - word;
  if (below === 0n) return `2^${exponent}`;
  return below <= above ? `2^${exponent} + ${below}` : `2^${exponent + 1} − ${above}`;
}

function hex(word: bigint, width: number): string {
  return `0x${word.toString(16).padStart(width / 4, '0')}`;
}
