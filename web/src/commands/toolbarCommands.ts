import type { Command } from './command';

/** A bar of buttons: the document bar, the sheet's toolbar, or the header of a word. */
export interface ToolbarTarget {
  /** Gives the focus to a button beside the one that has it, or to the first or last one. */
  readonly move: (place: 'previous' | 'next' | 'first' | 'last') => void;
}

const PLACES = { ArrowLeft: 'previous', ArrowRight: 'next', Home: 'first', End: 'last' } as const;

export const TOOLBAR_COMMANDS: readonly Command<ToolbarTarget>[] = [
  {
    id: 'toolbar.move',
    keys: Object.keys(PLACES),
    label: 'commands.toolbar.move',
    repeats: true,
    run: ({ move }, chord) => move(PLACES[chord as keyof typeof PLACES]),
  },
];
