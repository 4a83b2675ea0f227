import type { Command } from './command';

/** A text field that takes effect only when it is committed. */
export interface FieldTarget {
  readonly isAltered: () => boolean;
  readonly commit: () => void;
  readonly restore: () => void;
  /** Takes what was offered when the text was refused; undefined while nothing is. */
  readonly takeOffer?: (() => void) | undefined;
  /** The field above or below in the same word, where the caret cannot go further in this one. */
  readonly beside?: (step: 1 | -1) => FieldBeside | undefined;
}

interface FieldBeside {
  readonly focus: () => void;
  readonly select: () => void;
}

export const FIELD_COMMANDS: readonly Command<FieldTarget>[] = [
  {
    id: 'field.commit',
    keys: ['Enter'],
    label: 'commands.field.commit',
    // What a field shows is not always what it would take: a float that was left shows its bits as an integer.
    when: ({ isAltered }) => isAltered(),
    run: ({ commit }) => commit(),
  },
  {
    id: 'field.restore',
    keys: ['Escape'],
    label: 'commands.field.restore',
    when: ({ isAltered }) => isAltered(),
    yields: true,
    run: ({ restore }) => restore(),
  },
  {
    id: 'field.takeOffer',
    keys: ['Alt+Enter'],
    label: 'commands.field.takeOffer',
    when: ({ takeOffer }) => takeOffer !== undefined,
    run: ({ takeOffer }) => takeOffer?.(),
  },
  moveCommand('field.above', 'ArrowUp', -1),
  moveCommand('field.below', 'ArrowDown', 1),
];

function moveCommand(id: 'field.above' | 'field.below', key: string, step: 1 | -1): Command<FieldTarget> {
  return {
    id,
    keys: [key],
    label: `commands.${id}`,
    when: ({ beside }) => beside?.(step) !== undefined,
    yields: true,
    repeats: true,
    run({ beside }) {
      const field = beside?.(step);
      field?.focus();
      field?.select();
    },
  };
}
