import type { PersistStorage } from 'zustand/middleware';
import { hostKind } from '../host/hostKind';
import { i18next } from '../i18n';
import { showError } from '../ui/notifications';
import { type PersistedState, readRecord, RECORD_VERSION, writeRecord } from './persistedState';
import { storageBackend } from './storageBackend';

export const RECORD_KEY = 'bits-sheets-storage';
/** Holds the text of a record that could not be read, so that nothing is lost by starting afresh. */
export const SET_ASIDE_KEY = 'bits-sheets-storage-set-aside';

/** No browser keeps this many characters for one site, so larger records are not even written out. */
const LARGEST_RECORD = 5_000_000;
/** Fewer characters than any sheet's text has. */
const SMALLEST_SHEET = 300;

/** Writing takes at most about a tenth of the time, also for a document of a thousand sheets ... */
const REST_PER_COST = 10;
/** ... but nothing waits longer than this, in milliseconds. */
const LONGEST_REST = 2000;

/** While the page starts, in milliseconds since its beginning, what is to be shown comes first. */
const START_TIME = 1500;
const REST_AT_START = 250;

/** How long the last writing took, in milliseconds. */
let lastCost = 0;
let pending: { key: string; state: PersistedState } | undefined;
let isHeld = true;
let isLossTold = false;
let isOver = false;

/** Keeps the record of the sheets store. Changes within one task are written together after it, before leaving at last. */
export const persistStorage: PersistStorage<PersistedState> = {
  getItem(key) {
    if (hostKind === 'native' && !storageBackend.beginRun()) return null;
    const text = storageBackend.read(key);
    if (text === null) return null;
    try {
      return { state: readRecord(text), version: RECORD_VERSION };
    } catch (error) {
      console.warn('The kept state could not be read and was set aside.', error);
      storageBackend.write(SET_ASIDE_KEY, text);
      storageBackend.remove(key);
      return null;
    }
  },
  setItem(key, { state }) {
    if (isOver) return;
    if (!pending) setTimeout(flushRecord, restBeforeWriting());
    pending = { key, state };
  },
  removeItem(key) {
    pending = undefined;
    storageBackend.remove(key);
  },
};

function restBeforeWriting(): number {
  if (performance.now() < START_TIME) return REST_AT_START;
  return lastCost < 5 ? 0 : Math.min(LONGEST_REST, lastCost * REST_PER_COST);
}

/** Writes what is still waiting. @returns whether the record holds all that it should */
export function flushRecord(): boolean {
  if (!pending) return isHeld;
  const { key, state } = pending;
  pending = undefined;
  const begin = performance.now();
  const fits = state.sheets.size * SMALLEST_SHEET <= LARGEST_RECORD;
  isHeld = fits && storageBackend.write(key, writeRecord(state));
  // A record that could not be written must go: it would bring back another document.
  if (!isHeld) storageBackend.remove(key);
  if (!isHeld && state.sheets.size > 0) tellLoss();
  lastCost = performance.now() - begin;
  return isHeld;
}

/** The window closes for good: nothing of the document stays behind. */
export function forgetRecord(): void {
  isOver = true;
  pending = undefined;
  storageBackend.clear();
}

/** Only a browser's users rely on the record: the native host has the files, and an editor the document. */
function tellLoss(): void {
  if (isLossTold || hostKind !== 'browser') return;
  isLossTold = true;
  showError(i18next.t('messages.storage.unkept'));
}

if (typeof document !== 'undefined') addEventListener('pagehide', flushRecord);
