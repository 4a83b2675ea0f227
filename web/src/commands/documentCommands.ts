import { closeDocument, type Navigate, newDocument, openDocument } from '../actions/documentActions';
import { mustStartAgain, startAgain } from '../actions/leaveGuards';
import { saveDocument, saveDocumentAs } from '../actions/saving';
import { unsavedChangesPrompt } from '../actions/unsavedChangesPrompt';
import { useSheetsStore } from '../stores/sheetsStore';
import type { Command } from './command';

/** What the document's commands need from the page. */
export interface DocumentTarget {
  readonly navigate: Navigate;
}

const hasDocument = () => useSheetsStore.getState().documentFile !== null;
const isUnsaved = () => hasDocument() && useSheetsStore.getState().isUnsaved;
/** No second command begins while the question about unsaved changes is open. */
const unlessAsking = (isPossible: () => boolean) => () => unsavedChangesPrompt.answer === null && isPossible();

// A browser keeps the keys for new and closed tabs to itself, an editor keeps all of these.
/** What the document bar offers, in its order. */
export const DOCUMENT_COMMANDS = [
  {
    id: 'document.new',
    keys: ['Mod+N'],
    label: 'ui.new',
    hosts: ['native'],
    when: unlessAsking(() => true),
    run: ({ navigate }) => void newDocument(navigate),
  },
  {
    id: 'document.open',
    keys: ['Mod+O'],
    label: 'ui.open',
    hosts: ['native', 'browser'],
    when: unlessAsking(() => true),
    run: ({ navigate }) => void openDocument(navigate),
  },
  {
    id: 'document.save',
    keys: ['Mod+S'],
    label: 'ui.save',
    hosts: ['native', 'browser'],
    when: unlessAsking(isUnsaved),
    run: () => void saveDocument(),
  },
  {
    id: 'document.saveAs',
    keys: ['Mod+Shift+S'],
    label: 'ui.saveAs',
    hosts: ['native', 'browser'],
    when: unlessAsking(hasDocument),
    run: () => void saveDocumentAs(),
  },
  {
    id: 'document.close',
    keys: ['Mod+W'],
    label: 'ui.close',
    hosts: ['native'],
    when: unlessAsking(hasDocument),
    run: () => void closeDocument(),
  },
] as const satisfies readonly Command<DocumentTarget>[];

/** What the keyboard alone does to the page as a whole. */
export const PAGE_COMMANDS: readonly Command<DocumentTarget>[] = [
  {
    id: 'page.reload',
    keys: ['F5', 'Mod+R'],
    moreKeys: ['Ctrl+F5', 'Shift+F5', 'Mod+Shift+R', 'BrowserRefresh'],
    label: 'commands.page.reload',
    when: mustStartAgain,
    yields: true,
    run: () => void startAgain(),
  },
];
