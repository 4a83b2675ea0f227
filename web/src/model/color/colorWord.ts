import { readWord, writeWord } from '../integer/wordLayout';

/** A colour of four bytes. Alpha is 0 for transparent and 255 for opaque. */
export interface Rgba {
  readonly red: number;
  readonly green: number;
  readonly blue: number;
  readonly alpha: number;
}

/** Channels by number: the byte of the 32-bit block that holds them, counted from the least significant. */
export const COLOR_CHANNELS = ['red', 'green', 'blue', 'alpha'] as const;

const ALPHA_CHANNEL = 3;

/** @param block - a word of 32 bits */
export function colorOfBlock(block: bigint): Rgba {
  const byte = (channel: number) => Number(readWord(block, 8, channel));
  return { red: byte(0), green: byte(1), blue: byte(2), alpha: byte(3) };
}

/** @returns a word of 32 bits */
export function blockOfColor(color: Rgba): bigint {
  return COLOR_CHANNELS.reduce((block, name, channel) => writeWord(block, 8, channel, BigInt(color[name])), 0n);
}

/**
 * Sets one channel of a block.
 * @param channel - red 0, green 1, blue 2, alpha 3
 * @param byte - 0 to 255
 */
export function withChannel(block: bigint, channel: number, byte: number): bigint {
  return writeWord(block, 8, channel, BigInt(byte));
}

/** Sets the colour of a block, and its alpha too when asked to; otherwise the block keeps its alpha. */
export function withColor(block: bigint, color: Rgba, withAlpha: boolean): bigint {
  const alpha = withAlpha ? color.alpha : Number(readWord(block, 8, ALPHA_CHANNEL));
  return blockOfColor({ ...color, alpha });
}
