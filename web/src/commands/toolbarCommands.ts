import { BAR_KEYS, type BarPlace, placeOf } from './barPlaces';
import type { Command } from './command';

/** A bar of buttons: the document bar, the sheet's toolbar, or the header of a word. */
export interface ToolbarTarget {
  /** Gives the focus to a button beside the one that has it, or to the first or last one. */
  readonly move: (place: BarPlace) => void;
}

export const TOOLBAR_COMMANDS: readonly Command<ToolbarTarget>[] = [
  {
    id: 'toolbar.move',
    keys: BAR_KEYS,
    label: 'commands.toolbar.move',
    repeats: true,
    run: ({ move }, chord) => move(placeOf(chord)),
  },
];
