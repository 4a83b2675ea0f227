import type { NumberType } from '../model/sheet/numberDefinitions';

/** What a user did to a value; other changes are named after the field that they change. */
export type ValueChange =
  | 'edit'
  | 'bit'
  | 'color'
  | 'none'
  | 'all'
  | 'random'
  | 'bitwise-not'
  | 'shift-left'
  | 'shift-right'
  | 'shift-right-unsigned'
  /** One that has a name of its own. */
  | 'command';

/** A word of the sheet that is shown: its row, its width in bits, and its index counted from 0. */
export interface ChangedWord {
  readonly type: NumberType;
  readonly bits: number;
  readonly index: number;
}

/** Why a value changes, for whoever has to name the change later. */
export interface ChangeCause {
  readonly kind: ValueChange;
  readonly word: ChangedWord;
  /** What the user asked for, where the kind does not say it. */
  readonly name?: string;
}

let current: ChangeCause | undefined;

/** Runs a change and names its cause. Within another cause that one stays: it is what the user asked for. */
export function withCause(cause: ChangeCause, change: () => void): void {
  const outer = current;
  current = outer ?? cause;
  try {
    change();
  } finally {
    current = outer;
  }
}

/** The cause of the change that is being made at this moment; undefined when nobody named one. */
export function currentCause(): ChangeCause | undefined {
  return current;
}
