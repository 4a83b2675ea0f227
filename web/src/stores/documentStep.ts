import type { FileHandle } from '../host/fileHandle';
import { type BitsSheet, DOCUMENT_FIELDS } from '../model/sheet/bitsSheet';
import type { SheetsState } from './sheetsState';

/** What a step holds twice: as it was before, and as it is after. */
interface Change<T> {
  readonly before: T;
  readonly after: T;
}

/** The difference between two states of the document. It holds what differs, so that a step costs what it changed. */
export interface DocumentStep {
  /** Sheets that differ in what documents hold; undefined where the sheet is not there. */
  readonly sheets: ReadonlyMap<string, Change<BitsSheet | undefined>>;
  /** Identifiers in tab order, where sheets came, went or moved. */
  readonly order?: Change<readonly string[]>;
  /** Set where another document took the place of the open one. */
  readonly file?: Change<FileHandle | null>;
  readonly active: Change<string | null>;
}

/** Whether another document took the place of the open one; saving only changes the file. */
export function isReplaced(before: SheetsState, after: SheetsState): boolean {
  return before.documentFile !== after.documentFile && before.sheets !== after.sheets;
}

/** What led from one state to another; undefined when documents would hold the same of both. */
export function stepBetween(before: SheetsState, after: SheetsState): DocumentStep | undefined {
  const sheets = new Map<string, Change<BitsSheet | undefined>>();
  for (const [id, sheet] of after.sheets) {
    const old = before.sheets.get(id);
    if (old !== sheet && !(old && isSameInDocument(old, sheet))) sheets.set(id, { before: old, after: sheet });
  }
  for (const [id, old] of before.sheets) if (!after.sheets.has(id)) sheets.set(id, { before: old, after: undefined });

  const order = orderChange([...before.sheets.keys()], [...after.sheets.keys()]);
  if (sheets.size === 0 && !order) return undefined;
  return {
    sheets,
    ...(order && { order }),
    ...(isReplaced(before, after) && { file: { before: before.documentFile, after: after.documentFile } }),
    active: { before: before.activeSheetKey, after: after.activeSheetKey },
  };
}

/** Two steps that follow each other as one. */
export function joinSteps(first: DocumentStep, second: DocumentStep): DocumentStep {
  const sheets = new Map(first.sheets);
  for (const [id, change] of second.sheets) {
    const earlier = sheets.get(id);
    sheets.set(id, earlier ? { before: earlier.before, after: change.after } : change);
  }
  return {
    sheets,
    ...joined('order', first.order, second.order),
    ...joined('file', first.file, second.file),
    active: { before: first.active.before, after: second.active.after },
  };
}

/**
 * The state at one end of a step, seen from its other end. What documents do not hold, such as scroll positions, stays as
 * it is now.
 * @param end - 'before' to take the step back, 'after' to take it again
 */
export function applyStep(now: SheetsState, step: DocumentStep, end: keyof Change<unknown>): SheetsState {
  const changed = new Map<string, BitsSheet>();
  for (const [id, change] of step.sheets) {
    const target = change[end];
    if (target) changed.set(id, withViewOf(now.sheets.get(id), target));
  }
  const order = step.order?.[end] ?? [...now.sheets.keys()];
  const sheets = new Map(order.map((id) => [id, changed.get(id) ?? now.sheets.get(id)!]));
  const documentFile = step.file ? step.file[end] : now.documentFile;
  return { ...now, documentFile, sheets, activeSheetKey: shownSheet(step, end, sheets) };
}

/** The sheet that a step is about is shown; where it is gone, the one that was shown then. */
function shownSheet(step: DocumentStep, end: keyof Change<unknown>, sheets: ReadonlyMap<string, BitsSheet>) {
  const [only, ...others] = step.sheets.keys();
  if (only !== undefined && others.length === 0 && sheets.has(only)) return only;
  const active = step.active[end];
  return active !== null && sheets.has(active) ? active : ([...sheets.keys()].at(-1) ?? null);
}

function withViewOf(now: BitsSheet | undefined, target: BitsSheet): BitsSheet {
  if (!now) return target;
  return now.with(Object.fromEntries(DOCUMENT_FIELDS.map((field) => [field, target[field]])));
}

function isSameInDocument(a: BitsSheet, b: BitsSheet): boolean {
  return DOCUMENT_FIELDS.every((field) => a[field] === b[field]);
}

function orderChange(before: readonly string[], after: readonly string[]) {
  const isSame = before.length === after.length && before.every((id, index) => id === after[index]);
  return isSame ? undefined : { before, after };
}

function joined<Key extends string, T>(key: Key, first: Change<T> | undefined, second: Change<T> | undefined) {
  const [from, to] = [first ?? second, second ?? first];
  return from && to && ({ [key]: { before: from.before, after: to.after } } as Record<Key, Change<T>>);
}
