import { toggleKeysHelp } from '../actions/keysHelp';
import { showNeighbourSheet } from '../actions/sheetActions';
import type { LabelKey } from '../i18n';
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
  ...zoomCommands({ zoomIn: 'Plus', zoomOut: 'Minus', zoomEnd: '0' }),
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

/** The window or its engine acts on these keys, and the page is only laid out anew; a browser lists them itself. */
function zoomCommands(keys: Readonly<Record<'zoomIn' | 'zoomOut' | 'zoomEnd', string>>): Command<unknown>[] {
  return Object.entries(keys).map(([name, key]) => ({
    id: `page.${name}`,
    keys: [`Ctrl+${key}`],
    label: `commands.page.${name}` as LabelKey,
    hosts: ['native'],
    passesOn: true,
    run: () => undefined,
  }));
}
