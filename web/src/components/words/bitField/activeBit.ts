import { proxy } from 'valtio';
import { clearStatus } from '../../../ui/statusMessage';

/** The bit under the pointer or the keyboard's cursor. */
export interface ActiveBit {
  readonly width: number;
  /** Of the word, counted from 0. */
  readonly index: number;
  readonly bit: number;
  readonly isSet: boolean;
  readonly signed: boolean;
}

export const activeBitState = proxy<{ bit: ActiveBit | undefined }>({ bit: undefined });

/** Shows the bit that was gone to, in place of what the last command did. */
export function showBit(bit: ActiveBit | undefined): void {
  activeBitState.bit = bit;
  if (bit) clearStatus();
}

/** Shows anew what has become of the bit that is shown; a command that changed it may have something to report. */
export function updateShownBit(bit: ActiveBit): void {
  activeBitState.bit = bit;
}

/** What a set bit adds to its word's value, such as 2^7 = 128; the top bit of a signed word takes away. */
export function bitWeight({ width, bit, signed }: ActiveBit): string {
  const sign = signed && bit === width - 1 ? '−' : '';
  const power = `${sign}2^${bit}`;
  return bit < LONGEST_WRITTEN_WEIGHT ? `${power} = ${sign}${(1n << BigInt(bit)).toLocaleString('en')}` : power;
}

const LONGEST_WRITTEN_WEIGHT = 64;
