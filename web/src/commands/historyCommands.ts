import { redoChange, undoChange } from '../actions/historyActions';
import { isVsCode } from '../host/hostFlags';
import { isTextBeingAltered } from '../ui/alteredText';
import type { Command } from './command';
import type { DocumentTarget } from './documentCommands';

/** A text that is being typed has a history of its own, which the web view of Linux offers no key for. */
function inText(step: 'undo' | 'redo', otherwise: () => void): void {
  // eslint-disable-next-line @typescript-eslint/no-deprecated -- nothing else reaches the text's own history
  if (isTextBeingAltered()) document.execCommand(step);
  else otherwise();
}

/** An editor keeps a history of the whole document, and has no part in a text that is being typed. */
const isOurs = () => !isVsCode || isTextBeingAltered();

export const HISTORY_COMMANDS: readonly Command<DocumentTarget>[] = [
  {
    id: 'history.undo',
    keys: ['Mod+Z'],
    label: 'commands.history.undo',
    when: isOurs,
    yields: isVsCode,
    repeats: true,
    run: ({ navigate }) => inText('undo', () => undoChange(navigate)),
  },
  {
    id: 'history.redo',
    keys: ['Mod+Shift+Z', 'Mod+Y'],
    label: 'commands.history.redo',
    when: isOurs,
    yields: isVsCode,
    repeats: true,
    run: ({ navigate }) => inText('redo', () => redoChange(navigate)),
  },
];
