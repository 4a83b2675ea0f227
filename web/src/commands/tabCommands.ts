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
  /** Asks for another sheet to compare this one with. */
  readonly compare: () => void;
  readonly openMenu: () => void;
}

function moves(id: 'moveLeft' | 'moveRight', key: string, by: -1 | 1): Command<TabTarget> {
  return { id: `tab.${id}`, keys: [key], label: `commands.tab.${id}`, repeats: true, run: ({ move }) => move(by) };
}

/** What the menu of a tab offers, in its order. */
export const TAB_MENU: readonly Command<TabTarget>[] = [
  { id: 'tab.rename', keys: ['F2'], label: 'commands.tab.rename', run: ({ rename }) => rename() },
  moves('moveLeft', 'Mod+Shift+ArrowLeft', -1),
  moves('moveRight', 'Mod+Shift+ArrowRight', 1),
  { id: 'tab.compare', keys: [], label: 'commands.compare.ask', run: ({ compare }) => compare() },
  {
    id: 'tab.close',
    keys: ['Delete'],
    label: 'commands.tab.close',
    when: ({ isClosable }) => isClosable,
    repeats: true,
    run: ({ close }) => close(),
  },
];

export const TAB_COMMANDS: readonly Command<TabTarget>[] = [
  {
    id: 'tab.show',
    keys: BAR_KEYS,
    label: 'commands.tab.show',
    repeats: true,
    run: ({ show }, chord) => show(placeOf(chord)),
  },
  ...TAB_MENU,
  {
    id: 'tab.menu',
    keys: ['Shift+F10', 'ContextMenu'],
    label: 'commands.tab.menu',
    run: ({ openMenu }) => openMenu(),
  },
];
