import { create, type StateCreator } from 'zustand';
import { persist } from 'zustand/middleware';
import { UNTITLED_FILE_NAME } from '../document/fileType';
import { Loading } from '../document/loading';
import type { WordsDocumentData } from '../document/schema';
import { WordsDocument } from '../document/wordsDocument';
import { postDocumentUpdate, resumeDocumentUpdates, suspendDocumentUpdates } from '../host/editorExtension';
import type { FileHandle } from '../host/fileHandle';
import { isVsCode } from '../host/hostFlags';
import { type BitsSheet, createSheet, isDocumentChange, type SheetChanges } from '../model/sheet/bitsSheet';
import { freeSheetName } from '../model/sheet/sheetNames';
import { RECORD_VERSION } from './persistedState';
import { flushRecord, persistStorage, RECORD_KEY } from './persistStorage';
import { sheetsFromDocument } from './sheetsFromDocument';
import type { SheetsState } from './sheetsState';

export interface SheetsOperations {
  /** Adds a sheet with a free name and shows it. Opens an untitled document where none is open. */
  addSheet(): BitsSheet;
  /** Removes a sheet; the last one in tab order is shown next. */
  removeSheet(id: string): void;
  /** Puts a sheet at another place in tab order, counted from 0; places beyond either end mean that end. */
  moveSheet(id: string, place: number): void;
  /** Changes fields of a sheet. Only changes of what a document holds make the document unsaved. */
  updateSheet(id: string, changes: SheetChanges): void;
  setActiveSheet(id: string): void;
  getActiveSheet(): BitsSheet | undefined;
  getSheetName(id: string): string | undefined;
  /**
   * Replaces all sheets by those of a document that was checked before.
   * Rejects, and leaves everything as it was, when an integer of the document cannot be read.
   * @param file - where the document lives; an untitled file when absent
   * @param loading - the loading that this is part of, if it is
   */
  loadWordsDocument(data: WordsDocumentData, file?: FileHandle, loading?: Loading): Promise<void>;
  getWordsDocument(): WordsDocument;
  /** Notes where the document lives now; by default it counts as saved there. */
  updateWordsDocumentFileState(file: FileHandle | null, isUnsaved?: boolean): void;
  /** Writes the record for the next visit now instead of shortly. @returns whether it holds all sheets */
  persistState(): boolean;
  /** Forgets all sheets and the document. */
  reset(): void;
}

const EMPTY: SheetsState = { sheets: new Map(), activeSheetKey: null, documentFile: null, isUnsaved: false };

/** What a change of the document means: it is unsaved, or the editor gets it soon. */
function changed(get: () => SheetsOperations): Partial<SheetsState> {
  if (!isVsCode) return { isUnsaved: true };
  postDocumentUpdate(() => get().getWordsDocument().toData());
  return {};
}

const createStore: StateCreator<SheetsState & SheetsOperations> = (set, get) => ({
  ...EMPTY,

  addSheet() {
    const { sheets, documentFile } = get();
    const sheet = createSheet(freeSheetName([...sheets.values()].map(({ displayName }) => displayName)));
    set({
      sheets: new Map(sheets).set(sheet.id, sheet),
      activeSheetKey: sheet.id,
      documentFile: documentFile ?? { name: UNTITLED_FILE_NAME },
      ...changed(get),
    });
    return sheet;
  },

  removeSheet(id) {
    const sheets = new Map(get().sheets);
    if (!sheets.delete(id)) return;
    set({ sheets, activeSheetKey: [...sheets.keys()].at(-1) ?? null, ...changed(get) });
  },

  moveSheet(id, place) {
    const sheets = [...get().sheets];
    const from = sheets.findIndex(([each]) => each === id);
    const to = Math.max(0, Math.min(sheets.length - 1, place));
    if (from < 0 || from === to) return;
    sheets.splice(to, 0, ...sheets.splice(from, 1));
    set({ sheets: new Map(sheets), ...changed(get) });
  },

  updateSheet(id, changes) {
    const { sheets } = get();
    const sheet = sheets.get(id);
    if (!sheet) {
      console.error(`Sheet with id ${id} not found for update.`);
      return;
    }
    const isEdit = isDocumentChange(changes);
    const edited = sheet.with(changes);
    set({
      sheets: new Map(sheets).set(id, isEdit ? edited.withinResolution() : edited),
      ...(isEdit && changed(get)),
    });
  },

  setActiveSheet(id) {
    if (get().sheets.has(id)) set({ activeSheetKey: id });
  },

  getActiveSheet() {
    const { sheets, activeSheetKey } = get();
    return activeSheetKey === null ? undefined : sheets.get(activeSheetKey);
  },

  getSheetName(id) {
    return get().sheets.get(id)?.displayName;
  },

  async loadWordsDocument(data, file = { name: UNTITLED_FILE_NAME }, loading = new Loading()) {
    suspendDocumentUpdates();
    const sheets = await sheetsFromDocument(data, loading).catch((error: unknown) => {
      resumeDocumentUpdates(false);
      throw error;
    });
    resumeDocumentUpdates(true);
    const shown = get().activeSheetKey;
    const first = sheets.keys().next().value ?? null;
    set({
      sheets,
      activeSheetKey: shown !== null && sheets.has(shown) ? shown : first,
      documentFile: file,
      isUnsaved: file.path === undefined && !isVsCode,
    });
  },

  getWordsDocument() {
    const document = new WordsDocument();
    document.addSheets(get().sheets.values());
    return document;
  },

  updateWordsDocumentFileState(file, isUnsaved = false) {
    set({ documentFile: file, isUnsaved });
  },

  persistState: flushRecord,

  reset() {
    set(EMPTY);
  },
});

/** The open document: its sheets, which of them is shown, where it is saved and whether it is. */
export const useSheetsStore = create<SheetsState & SheetsOperations>()(
  persist(createStore, {
    name: RECORD_KEY,
    version: RECORD_VERSION,
    storage: persistStorage,
    partialize: ({ sheets, activeSheetKey, documentFile, isUnsaved }) => ({
      sheets,
      activeSheetKey,
      documentFile,
      isUnsaved,
    }),
  }),
);
