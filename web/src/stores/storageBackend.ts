import { vsCodeApi } from '../host/hostFlags';

/** Where the record is kept. Nothing here throws: a browser may refuse storage, and then nothing is kept. */
export interface StorageBackend {
  read(key: string): string | null;
  write(key: string, text: string): boolean;
  remove(key: string): void;
  /** Removes everything, what other parts of the page keep included. */
  clear(): void;
  /**
   * Begins a run of the native host, unless this page belongs to the one that has begun. What is kept then is another
   * run's, which had the same address by chance, and is removed, at the latest before something is written.
   * @returns whether what is kept is of this run
   */
  beginRun(): boolean;
}

/** In the storage of the session, which has the life of the window and outlives reloads and crashes of the page. */
const RUN_KEY = 'tessary-run';
/** Until then the page should be there; the first look into the storage waits for another process. In milliseconds. */
const START_TIME = 500;

let isRunNew = false;

const browserStorage: StorageBackend = {
  read: (key) => attempt(() => localStorage.getItem(key), null),
  write(key, text) {
    clearForNewRun();
    return attempt(() => (localStorage.setItem(key, text), true), false);
  },
  remove: (key) => attempt(() => localStorage.removeItem(key), undefined),
  clear: () => attempt(() => localStorage.clear(), undefined),
  beginRun() {
    if (attempt(() => sessionStorage.getItem(RUN_KEY), null) !== null) return true;
    isRunNew = true;
    setTimeout(clearForNewRun, START_TIME);
    return false;
  },
};

function clearForNewRun(): void {
  if (!isRunNew) return;
  isRunNew = false;
  browserStorage.clear();
  attempt(() => sessionStorage.setItem(RUN_KEY, 'begun'), undefined);
}

/** The editor extension keeps one state object for the page; the record is one of its members. */
const extensionState: StorageBackend = {
  read(key) {
    const text = extensionMembers()[key];
    return typeof text === 'string' ? text : null;
  },
  write(key, text) {
    vsCodeApi?.setState({ ...extensionMembers(), [key]: text });
    return true;
  },
  remove(key) {
    const { [key]: _removed, ...others } = extensionMembers();
    vsCodeApi?.setState(others);
  },
  clear: () => vsCodeApi?.setState({}),
  beginRun: () => true,
};

export const storageBackend: StorageBackend = vsCodeApi ? extensionState : browserStorage;

function extensionMembers(): Record<string, unknown> {
  const state = vsCodeApi?.getState();
  return typeof state === 'object' && state !== null ? (state as Record<string, unknown>) : {};
}

function attempt<T>(act: () => T, otherwise: T): T {
  try {
    return act();
  } catch {
    return otherwise;
  }
}
