import { i18next } from '../i18n';
import type { BitsSheet, SheetChanges } from '../model/sheet/bitsSheet';
import { definitionLabel } from '../model/sheet/numberDefinitions';
import type { DocumentStep } from '../stores/documentStep';
import { type HistoryStep, redo, undo } from '../stores/history';
import { useSheetsStore } from '../stores/sheetsStore';
import { useSheetStore } from '../stores/sheetStore';
import { showStatus } from '../ui/statusMessage';
import type { Navigate } from './documentActions';
import { showChange } from './shownChange';

const TOOL_ROUTE = '/tools/words';

/** Takes the last change of the document back and shows where it was. */
export function undoChange(navigate: Navigate): void {
  const step = undo();
  if (!step) return showStatus(i18next.t('history.nothingToUndo'));
  reveal(step, navigate);
  showStatus(i18next.t('history.undid', { step: stepName(step) }));
}

/** Makes the change again that was taken back last and shows where it is. */
export function redoChange(navigate: Navigate): void {
  const step = redo();
  if (!step) return showStatus(i18next.t('history.nothingToRedo'));
  reveal(step, navigate);
  showStatus(i18next.t('history.redid', { step: stepName(step) }));
}

function reveal({ difference, cause }: HistoryStep, navigate: Navigate): void {
  if (!location.pathname.endsWith(TOOL_ROUTE)) void navigate(TOOL_ROUTE);
  const { activeSheetKey } = useSheetsStore.getState();
  const change = activeSheetKey === null ? undefined : difference.sheets.get(activeSheetKey);
  const bits = change?.before && change.after ? change.before.int ^ change.after.int : 0n;
  const word = change && cause?.word;
  if (word) useSheetStore.getState().focus(word.type, word.bits, word.index);
  showChange(activeSheetKey, bits, word);
}

/** What was done and where, such as "random, Int 64 word 1". */
function stepName({ difference, cause }: HistoryStep): string {
  if (cause) return `${cause.name ?? i18next.t(`history.kinds.${cause.kind}`)}, ${wordName(cause.word)}`;
  const kind = i18next.t(`history.kinds.${kindOf(difference)}`);
  const [only, ...others] = difference.sheets.values();
  const sheet = only?.after ?? only?.before;
  return sheet && others.length === 0 ? `${kind}, ${sheet.displayName}` : kind;
}

function wordName({ type, bits, index }: NonNullable<HistoryStep['cause']>['word']): string {
  return i18next.t('words.block', { row: definitionLabel({ type, bits }), number: index + 1 });
}

type StepKind = 'document' | 'sheetAdded' | 'sheetClosed' | 'sheetMoved' | Exclude<keyof SheetChanges, ViewField>;
type ViewField = 'focusedBlock' | 'scrollMap' | 'flagOptions';

function kindOf({ file, order, sheets }: DocumentStep): StepKind {
  if (file) return 'document';
  if (order) {
    const delta = order.after.length - order.before.length;
    return delta > 0 ? 'sheetAdded' : delta < 0 ? 'sheetClosed' : 'sheetMoved';
  }
  const [change] = sheets.values();
  return change?.before && change.after ? changedField(change.before, change.after) : 'int';
}

/** The narrowest width takes bits away: a change of width is named before the value that it changes. */
const NAMED_FIELDS = ['displayName', 'intResolution', 'signMap', 'numberDefinitions', 'converters', 'int'] as const;

function changedField(before: BitsSheet, after: BitsSheet) {
  return NAMED_FIELDS.find((field) => before[field] !== after[field]) ?? 'int';
}
