import { BAR_KEYS, type BarPlace, placeOf } from './barPlaces';
import type { Command } from './command';

/** One sheet's tab in the strip of tabs. */
export interface TabTarget {
  readonly isClosable: boolean;
  readonly rename: () => void;
  readonly close: () => void;
  /** Shows a neighbour of the active tab, or the first or last of all tabs. */
  readonly show: (place: BarPlace) => void;
  /** Puts the tab so many places further on. */
  readonly move: (by: -1 | 1) => void;
}

export const TAB_COMMANDS: readonly Command<TabTarget>[] = [
  {
    id: 'tab.show',
    keys: BAR_KEYS,
    label: 'commands.tab.show',
    repeats: true,
    run: ({ show }, chord) => show(placeOf(chord)),
  },
  {
    id: 'tab.move',
    keys: ['Mod+Shift+ArrowLeft', 'Mod+Shift+ArrowRight'],
    label: 'commands.tab.move',
    repeats: true,
    run: ({ move }, chord) => move(chord?.endsWith('Left') ? -1 : 1),
  },
  { id: 'tab.rename', keys: ['F2'], label: 'commands.tab.rename', run: ({ rename }) => rename() },
  {
    id: 'tab.close',
    keys: ['Delete'],
    label: 'commands.tab.close',
    when: ({ isClosable }) => isClosable,
    repeats: true,
    run: ({ close }) => close(),
  },
];
