import { redoChange, undoChange } from '../actions/historyActions';
import { isTextBeingAltered } from '../ui/alteredText';
import type { Command } from './command';
import type { DocumentTarget } from './documentCommands';

// A text that is being typed has the browser's own history, and an editor keeps one of the whole document.
export const HISTORY_COMMANDS: readonly Command<DocumentTarget>[] = [
  {
    id: 'history.undo',
    keys: ['Mod+Z'],
    label: 'commands.history.undo',
    hosts: ['native', 'browser'],
    when: () => !isTextBeingAltered(),
    yields: true,
    repeats: true,
    run: ({ navigate }) => undoChange(navigate),
  },
  {
    id: 'history.redo',
    keys: ['Mod+Shift+Z', 'Mod+Y'],
    label: 'commands.history.redo',
    hosts: ['native', 'browser'],
    when: () => !isTextBeingAltered(),
    yields: true,
    repeats: true,
    run: ({ navigate }) => redoChange(navigate),
  },
];
