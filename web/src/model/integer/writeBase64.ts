import { WRITTEN_DIGITS } from './digitAlphabets';
import { writeDigits } from './writeDigits';

/*
 * The engine writes base 32 faster than anything else takes a long number apart, and 12 of its digits are 60 bits, so
 * 10 digits of base 64. The digits are handled as bytes in memory that is used again for each number: strings that
 * grow digit by digit, and even fresh memory, take longer than all the rest.
 */
const GROUPS = 18;
const input = new DataView(new ArrayBuffer(GROUPS * 12));
const output = new DataView(new ArrayBuffer(GROUPS * 10));
const inputFrom = Array.from({ length: 12 }, (_, start) => new Uint8Array(input.buffer, start));
const outputBytes = new Uint8Array(output.buffer);
/** The parts of `outputBytes` that were decoded before, by their first and last place. */
const outputParts: (Uint8Array | undefined)[] = [];
const encoder = new TextEncoder();
const decoder = new TextDecoder();
const ZERO = 48;

/** Two digits as two bytes, for each number of 12 bits; the first digit is in the lower byte. */
const DIGIT_PAIRS = Uint16Array.from({ length: 4096 }, (_, bits) => {
  return WRITTEN_DIGITS.charCodeAt(bits >> 6) | (WRITTEN_DIGITS.charCodeAt(bits & 63) << 8);
});

/**
 * Writes a number that is not negative in base 64.
 * @returns digits of WRITTEN_DIGITS without leading zeros
 */
export function writeBase64(magnitude: bigint): string {
  const text = magnitude.toString(32);
  const groups = Math.ceil(text.length / 12);
  if (groups > GROUPS) return writeDigits(magnitude, 64);
  const padding = groups * 12 - text.length;
  for (let at = 0; at < padding; at++) input.setUint8(at, ZERO);
  encoder.encodeInto(text, inputFrom[padding]!);
  for (let group = 0; group < groups; group++) regroup(group * 12, group * 10);
  return decodeOutput(groups * 10);
}

function regroup(from: number, to: number): void {
  const upper = twentyBits(input.getUint32(from, true));
  const middle = twentyBits(input.getUint32(from + 4, true));
  const lower = twentyBits(input.getUint32(from + 8, true));
  output.setUint16(to, DIGIT_PAIRS[upper >> 8]!, true);
  output.setUint16(to + 2, DIGIT_PAIRS[((upper & 0xff) << 4) | (middle >> 16)]!, true);
  output.setUint16(to + 4, DIGIT_PAIRS[(middle >> 4) & 0xfff]!, true);
  output.setUint16(to + 6, DIGIT_PAIRS[((middle & 0xf) << 8) | (lower >> 12)]!, true);
  output.setUint16(to + 8, DIGIT_PAIRS[lower & 0xfff]!, true);
}

// Four characters of base 32, the first in the lowest byte, to the number they stand for. All four are turned into
// their values at once: a letter's low five bits are 9 less than its value, a figure's are 16 more.
function twentyBits(characters: number): number {
  const letters = (characters >>> 6) & 0x01010101;
  const values = (characters & 0x1f1f1f1f) + letters * 25 - 0x10101010;
  return ((values & 0x1f) << 15) | ((values & 0x1f00) << 2) | ((values >>> 11) & 0x3e0) | (values >>> 24);
}

// The first group holds a digit other than 0, or is the last and holds the number 0: `start` stays below 10.
function decodeOutput(end: number): string {
  let start = 0;
  while (start < 9 && outputBytes[start] === ZERO) start++;
  return decoder.decode((outputParts[end + start] ??= outputBytes.subarray(start, end)));
}
