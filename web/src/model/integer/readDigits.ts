import { digitValues } from './digitAlphabets';
import { chunkPower, type RadixChunks, radixChunks } from './radixChunks';

/** What the engine's own reader wants before the digits, for the bases that it reads. */
const ENGINE_PREFIXES: Record<number, string> = { 2: '0b', 8: '0o', 10: '', 16: '0x' };

/**
 * The number that digits stand for.
 * @param digits - at least one, all of the base's alphabet
 */
export function readDigits(digits: string, base: number): bigint {
  const prefix = ENGINE_PREFIXES[base];
  if (prefix !== undefined) return BigInt(prefix + digits);
  const chunks = radixChunks(base);
  return readChunks(digits, Math.ceil(digits.length / chunks.digits), digits.length, chunks);
}

// The digits of `count` chunks before `end`; at the text's beginning there may be fewer.
function readChunks(text: string, count: number, end: number, chunks: RadixChunks): bigint {
  if (count === 1) return BigInt(readChunk(text, end, chunks));
  const lowerCount = count >> 1;
  const middle = end - lowerCount * chunks.digits;
  const upper = readChunks(text, count - lowerCount, middle, chunks);
  return upper * chunkPower(chunks, lowerCount) + readChunks(text, lowerCount, end, chunks);
}

function readChunk(text: string, end: number, { base, digits }: RadixChunks): number {
  const values = digitValues(base);
  let number = 0;
  for (let index = Math.max(0, end - digits); index < end; index++) {
    number = number * base + values[text.charCodeAt(index)]!;
  }
  return number;
}
