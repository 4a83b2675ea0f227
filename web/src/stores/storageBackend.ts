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
   * run's, which had the same address by chance, and is removed.
   */
  beginRun(): void;
}

/** In the storage of the session, which has the life of the window and outlives reloads and crashes of the page. */
const RUN_KEY = 'tessary-run';

const browserStorage: StorageBackend = {
  read: (key) => attempt(() => localStorage.getItem(key), null),
  write: (key, text) => attempt(() => (localStorage.setItem(key, text), true), false),
  remove: (key) => attempt(() => localStorage.removeItem(key), undefined),
  clear: () => attempt(() => localStorage.clear(), undefined),
  beginRun() {
    if (attempt(() => sessionStorage.getItem(RUN_KEY), null) !== null) return;
    this.clear();
    attempt(() => sessionStorage.setItem(RUN_KEY, 'begun'), undefined);
  },
};

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
  beginRun: () => undefined,
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
