import { type BitsTarget, focusedWord } from '../actions/focusedWord';
import { askForPaste, catchPaste, copyAs, copyMask, copyWord, editField } from '../actions/wordClipboard';
import { appliedOperations, operate } from '../actions/wordOperation';
import { openPanel, type PanelPlace } from '../actions/wordPanel';
import type { LabelKey } from '../i18n';
import { currentRange } from '../stores/bitRange';
import { isTextField } from '../ui/alteredText';
import type { Command } from './command';
import { COMPARE_COMMANDS, type CompareTarget } from './compareCommands';
import { GO_TO_BITS, RANGE_MENU, SHEET_COMMANDS } from './rangeCommands';

/** The word that a command acts on, with what of it was pointed at. */
export interface WordActionTarget extends CompareTarget {
  readonly word: BitsTarget;
  readonly bit?: number | undefined;
  readonly field?: HTMLElement | undefined;
  readonly place?: PanelPlace;
  /** A key was pressed, which may mean something else where the focus is. */
  readonly isByKey?: boolean;
}

type WordAction = Command<WordActionTarget>;

const label = (name: string) => `commands.word.${name}` as LabelKey;

/** Nothing is selected, so that there is nothing else that could be copied. */
function hasNoSelection(): boolean {
  const { activeElement } = document;
  if (isTextField(activeElement)) return activeElement.selectionStart === activeElement.selectionEnd;
  return getSelection()?.isCollapsed ?? true;
}

function isOutsideFields(): boolean {
  const { activeElement } = document;
  return !isTextField(activeElement) || activeElement.readOnly;
}

function opens(id: string, text: string): WordAction {
  return {
    id: `word.${id}`,
    keys: [],
    label: label(id),
    run: ({ word, place }) => openPanel(word, { kind: 'operation', text }, place),
  };
}

export const INSPECT_WORD: WordAction = {
  id: 'word.inspect',
  keys: ['Mod+I'],
  label: label('inspect'),
  run: ({ word, place }) => openPanel(word, { kind: 'inspect' }, place),
};

const IN_FIELDS: readonly WordAction[] = (['cut', 'copy', 'paste'] as const).map((edit) => ({
  id: `field.${edit}`,
  keys: [],
  label: `commands.field.${edit}`,
  when: ({ field }) => isTextField(field) && (edit === 'copy' || !field.readOnly),
  run: ({ field }) => editField(field!, edit),
}));

/** What the menu of a word offers, in its order; the first ones are there in a text field. */
export const WORD_MENU: readonly WordAction[] = [
  ...IN_FIELDS,
  {
    id: 'word.copy',
    keys: ['Mod+C'],
    label: label('copy'),
    when: ({ isByKey }) => !isByKey || hasNoSelection(),
    yields: true,
    run: ({ word }) => copyWord(word),
  },
  {
    id: 'word.copyAs',
    keys: [],
    label: label('copyAs'),
    run: ({ word, bit, field, place }) => openPanel(word, { kind: 'copyAs', bit, field }, place),
  },
  {
    id: 'word.paste',
    keys: ['Mod+V'],
    label: label('paste'),
    when: ({ isByKey, word }) => (isByKey ? isOutsideFields() : !word.range),
    yields: true,
    passesOn: true,
    run: ({ word, place }, chord) => (chord ? catchPaste(word) : askForPaste(word, place)),
  },
  { id: 'word.swap', keys: [], label: label('swap'), run: ({ word }) => void operate(word, 'swap') },
  { id: 'word.reverse', keys: [], label: label('reverse'), run: ({ word }) => void operate(word, 'rev') },
  opens('rotate', 'rol '),
  opens('shift', 'shl '),
  {
    id: 'word.operation',
    keys: ['Mod+K'],
    label: label('operation'),
    hosts: ['native', 'browser'],
    run: ({ word, place }) => openPanel(word, { kind: 'operation', text: '' }, place),
  },
  GO_TO_BITS,
  ...RANGE_MENU,
  INSPECT_WORD,
  ...COMPARE_COMMANDS,
  {
    id: 'word.copyMask',
    keys: [],
    label: label('copyMask'),
    when: ({ word, bit }) => word.range !== undefined || bit !== undefined,
    run: ({ word, bit }) => copyMask(word, bit),
  },
];

/** What the keyboard alone does to the focused word. */
const BY_KEY: readonly WordAction[] = [
  { id: 'word.copyAgain', keys: ['Mod+Shift+C'], label: label('copyAgain'), run: ({ word }) => copyAs(word) },
  {
    id: 'word.pasteAnywhere',
    keys: ['Mod+Shift+V'],
    label: label('pasteAnywhere'),
    passesOn: true,
    run: ({ word }) => catchPaste(word),
  },
  {
    id: 'word.repeat',
    keys: ['Mod+.'],
    label: label('repeat'),
    when: () => appliedOperations.length > 0,
    repeats: true,
    run: ({ word }) => void operate(word, appliedOperations[0]!),
  },
  {
    id: 'word.menu',
    keys: ['Shift+F10', 'ContextMenu'],
    label: label('menu'),
    // A tab has a menu of its own.
    when: () => !document.activeElement?.matches('[role="tab"]'),
    yields: true,
    run: ({ word, field, bit }) => openPanel(word, { kind: 'menu', field, bit }),
  },
];

/** Commands of the menu whose keys act also where no word has the focus. */
const OF_SHEET: ReadonlySet<WordAction> = new Set<WordAction>(COMPARE_COMMANDS);

/** Everything that can be done to the focused word by key. */
export const WORD_ACTIONS: readonly WordAction[] = [
  ...WORD_MENU.filter((each) => !OF_SHEET.has(each)),
  ...BY_KEY,
  ...SHEET_COMMANDS.filter((each) => each !== GO_TO_BITS),
];

/** Whether the keyboard is where the commands of words are: not in another field, nor in something over the page. */
export function isAtWords(element: Element | null): element is Element {
  if (!element || element.closest('[data-popup], [role="dialog"]')) return false;
  return !isTextField(element) || element.closest('[data-word]') !== null;
}

/** The focused word, or the bits that are chosen while the keyboard is in a bit field or outside of all words. */
export function wordActionTarget(element: Element): WordActionTarget | undefined {
  const word = focusedWord();
  if (!word) return undefined;
  const isInOther = element.closest('[data-word]') !== null && !(element instanceof HTMLCanvasElement);
  const range = isInOther ? undefined : currentRange();
  return { word: { ...word, range }, field: isTextField(element) ? element : undefined, isByKey: true };
}
