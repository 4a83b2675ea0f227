import { toggleKeysHelp } from '../actions/keysHelp';
import { showNeighbourSheet } from '../actions/sheetActions';
import { areNoticesOpen, closeNotices } from '../ui/notifications';
import { goToRegion } from '../ui/regions';
import type { Command } from './command';

/** What the keyboard does to the page around the sheet, wherever the focus is. */
export const FRAME_COMMANDS: readonly Command<unknown>[] = [
  {
    id: 'help.keys',
    keys: ['F1'],
    label: 'commands.help.keys',
    hosts: ['native', 'browser'],
    run: toggleKeysHelp,
  },
  {
    id: 'region.next',
    keys: ['F6'],
    label: 'commands.region.next',
    hosts: ['native', 'browser'],
    run: () => goToRegion(1),
  },
  {
    id: 'region.previous',
    keys: ['Shift+F6'],
    label: 'commands.region.previous',
    hosts: ['native', 'browser'],
    run: () => goToRegion(-1),
  },
  // Browsers and editors have these for tabs of their own.
  {
    id: 'sheet.next',
    keys: ['Ctrl+PageDown'],
    label: 'commands.sheet.next',
    hosts: ['native'],
    repeats: true,
    run: () => showNeighbourSheet(1),
  },
  {
    id: 'sheet.previous',
    keys: ['Ctrl+PageUp'],
    label: 'commands.sheet.previous',
    hosts: ['native'],
    repeats: true,
    run: () => showNeighbourSheet(-1),
  },
  {
    id: 'notice.close',
    keys: ['Escape'],
    label: 'commands.notice.close',
    when: areNoticesOpen,
    yields: true,
    passesOn: true,
    run: closeNotices,
  },
];
