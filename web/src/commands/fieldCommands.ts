import type { Command } from './command';

/** A text field that takes effect only when it is committed. */
export interface FieldTarget {
  readonly isAltered: () => boolean;
  readonly commit: () => void;
  readonly restore: () => void;
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
];
