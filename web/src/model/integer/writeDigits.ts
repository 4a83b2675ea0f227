import { WRITTEN_DIGITS } from './digitAlphabets';
import { chunkPower, type RadixChunks, radixChunks } from './radixChunks';

const decoder = new TextDecoder();
const DIGIT_BYTES = new TextEncoder().encode(WRITTEN_DIGITS);
const ZERO = DIGIT_BYTES[0];

/**
 * Writes a number that is not negative in a base from 2 to 64. Meant for the bases that the engine cannot write.
 * The digits are put down as bytes, since a string that grows digit by digit takes longer than the divisions.
 * @returns digits of WRITTEN_DIGITS without leading zeros
 */
export function writeDigits(magnitude: bigint, base: number): string {
  const chunks = radixChunks(base);
  const bits = magnitude.toString(16).length * 4;
  const count = Math.ceil(bits / Math.log2(base) / chunks.digits);
  const bytes = new Uint8Array(count * chunks.digits);
  writeChunks(magnitude, count, chunks, bytes, bytes.length);
  let start = 0;
  while (start < bytes.length - 1 && bytes[start] === ZERO) start++;
  return decoder.decode(bytes.subarray(start));
}

// Fills the digits of `count` chunks before `end`.
function writeChunks(number: bigint, count: number, chunks: RadixChunks, bytes: Uint8Array, end: number): void {
  if (count === 1) return writeChunk(Number(number), chunks, bytes, end);
  const lowerCount = count >> 1;
  const power = chunkPower(chunks, lowerCount);
  const upper = number / power;
  writeChunks(upper, count - lowerCount, chunks, bytes, end - lowerCount * chunks.digits);
  writeChunks(number - upper * power, lowerCount, chunks, bytes, end);
}

function writeChunk(number: number, { base, digits }: RadixChunks, bytes: Uint8Array, end: number): void {
  let rest = number;
  for (let index = end - 1; index >= end - digits; index--) {
    const upper = Math.floor(rest / base);
    bytes[index] = DIGIT_BYTES[rest - upper * base]!;
    rest = upper;
  }
}
