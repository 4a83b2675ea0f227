/*
 * Keeps the two stores equal. Importing this file connects them for the life of the page.
 *
 *   sheetStore (the sheet being shown)            sheetsStore (every sheet of the document)
 *
 *     an edit  ──── changed fields ────────────────▶  updateSheet
 *     setSheet, reset  ◀──── the active sheet ─────   another tab, a loaded document, a new name
 *
 * Neither direction answers the other: what came from one side is not sent back to it.
 */
import { type BitsSheet, SHEET_FIELDS, type SheetChanges } from '../model/sheet/bitsSheet';
import { useSheetsStore } from './sheetsStore';
import { type SheetState, useSheetStore } from './sheetStore';

/** The value is one object in the editing state and two fields in a sheet; all else has the same form in both. */
const SHARED_FIELDS = SHEET_FIELDS.filter((field) => field !== 'int' && field !== 'intResolution');

/** The active sheet as the sheets store last held it. */
let known: BitsSheet | undefined;
/** A change is on its way from one store to the other. */
let isPropagating = false;

useSheetStore.subscribe(toDocument);
useSheetsStore.subscribe(toEditingState);
toEditingState();

function toDocument(sheet: SheetState, before: SheetState): void {
  if (isPropagating || sheet.id === null || sheet.id !== before.id) return;
  const { sheets, updateSheet } = useSheetsStore.getState();
  const { id } = sheet;
  const changes = changesBetween(before, sheet);
  const stored = sheets.get(id);
  // An edit that leaves everything as it was, such as Enter in an untouched field, makes no document unsaved.
  const isHeld = stored !== undefined && fieldsOf(changes).every((field) => stored[field] === changes[field]);
  if (!isHeld) propagate(() => updateSheet(id, changes));
}

function toEditingState(): void {
  const active = useSheetsStore.getState().getActiveSheet();
  if (active === known) return;
  known = active;
  if (isPropagating) return;
  const { setSheet, reset } = useSheetStore.getState();
  propagate(() => (active ? setSheet(active) : reset()));
}

function propagate(change: () => void): void {
  isPropagating = true;
  try {
    change();
  } finally {
    isPropagating = false;
  }
}

function changesBetween(before: SheetState, now: SheetState): SheetChanges {
  const changed = SHARED_FIELDS.filter((field) => now[field] !== before[field]);
  const changes: SheetChanges = Object.fromEntries(changed.map((field) => [field, now[field]]));
  return now.int === before.int ? changes : { ...changes, int: now.int.value, intResolution: now.int.resolution };
}

function fieldsOf(changes: SheetChanges): (keyof SheetChanges)[] {
  return Object.keys(changes) as (keyof SheetChanges)[];
}
