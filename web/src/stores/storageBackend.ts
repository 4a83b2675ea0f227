import { vsCodeApi } from '../host/hostFlags';

/** Where the record is kept. Nothing here throws: a browser may refuse storage, and then nothing is kept. */
export interface StorageBackend {
  read(key: string): string | null;
  write(key: string, text: string): boolean;
  remove(key: string): void;
}

const browserStorage: StorageBackend = {
  read: (key) => attempt(() => localStorage.getItem(key), null),
  write: (key, text) => attempt(() => (localStorage.setItem(key, text), true), false),
  remove: (key) => attempt(() => localStorage.removeItem(key), undefined),
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
