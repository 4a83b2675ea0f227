/*
 * As much of the editor's programming interface as sessions and the first window use, for their tests. Nothing happens
 * by itself: edits wait until the editor is told to take them.
 */
import type { PageMessage } from './messages';

type Listener<Event> = (event: Event) => void;

class Emitter<Event> {
  readonly #listeners = new Set<Listener<Event>>();

  readonly event = (listener: Listener<Event>) => {
    this.#listeners.add(listener);
    return { dispose: () => this.#listeners.delete(listener) };
  };

  fire(event: Event): void {
    for (const listener of this.#listeners) listener(event);
  }
}

export class Position {
  constructor(
    readonly line: number,
    readonly character: number,
  ) {}
}

export class Range {
  constructor(
    readonly start: Position,
    readonly end: Position,
  ) {}
}

export class WorkspaceEdit {
  readonly replacements: { start: Position; end: Position; text: string }[] = [];
  document: FakeDocument | undefined;

  replace(uri: unknown, { start, end }: Range, text: string): void {
    this.document = documents.get(uri);
    this.replacements.push({ start, end, text });
  }
}

const changes = new Emitter<{ document: FakeDocument }>();
const edits: (() => void)[] = [];

/** A text that several views may show. An edit that was made for an older version of it is refused. */
export class FakeDocument {
  readonly isUntitled = false;
  readonly uri;
  #version = 0;

  constructor(
    private text: string,
    scheme = 'file',
  ) {
    this.uri = { scheme, path: '/numbers.tessary' };
    documents.set(this.uri, this);
  }

  getText(): string {
    return this.text;
  }

  get version(): number {
    return this.#version;
  }

  set(text: string): void {
    this.text = text;
    this.#version++;
    changes.fire({ document: this });
  }

  offsetOf({ line, character }: Position): number {
    const before = this.text.split('\n').slice(0, line);
    return before.reduce((sum, { length }) => sum + length + 1, 0) + character;
  }
}

const documents = new Map<unknown, FakeDocument>();

/** Takes the edit that waits longest, or refuses it. @returns whether there was one */
export function takeEdit(): boolean {
  const take = edits.shift();
  take?.();
  return take !== undefined;
}

export class FakeWebview {
  readonly #messages = new Emitter<PageMessage>();
  readonly onDidReceiveMessage = this.#messages.event;
  /** What was posted to the page and not read yet. */
  readonly posted: unknown[] = [];

  postMessage(message: unknown): Promise<boolean> {
    this.posted.push(message);
    return Promise.resolve(true);
  }

  send(message: PageMessage): void {
    this.#messages.fire(message);
  }
}

export const FilePermission = { Readonly: 1 };
export const workspace = {
  fs: {
    isWritableFileSystem: (scheme: string) => ({ file: true, git: false })[scheme],
    stat: () => Promise.resolve({}),
  },
  onDidChangeTextDocument: changes.event,
  onWillSaveTextDocument: new Emitter().event,
  applyEdit({ document, replacements }: WorkspaceEdit): Promise<boolean> {
    if (!document) throw new Error('an edit of nothing');
    const { version } = document;
    return new Promise((resolve) => {
      edits.push(() => {
        if (document.version !== version) return resolve(false);
        let text = document.getText();
        for (const { start, end, text: inserted } of replacements.toReversed()) {
          text = text.slice(0, document.offsetOf(start)) + inserted + text.slice(document.offsetOf(end));
        }
        document.set(text);
        resolve(true);
      });
    });
  },
};
export class TabInputText {
  constructor(readonly uri: { path: string }) {}
}

interface FakeTab {
  input: unknown;
  group: FakeTabGroup;
  isActive: boolean;
  isDirty: boolean;
}

interface FakeTabGroup {
  viewColumn: number;
  isActive: boolean;
  tabs: FakeTab[];
}

/** As the editor does, it refuses to close a tab that is not there any more. */
export const tabGroups = {
  all: [] as FakeTabGroup[],
  close(tabs: readonly FakeTab[]) {
    for (const tab of tabs) {
      if (!tab.group.tabs.includes(tab) || !this.all.includes(tab.group)) throw new Error('no such tab');
      tab.group.tabs = tab.group.tabs.filter((other) => other !== tab);
    }
    return Promise.resolve(true);
  },
};

/** The warnings that were shown. */
export const warnings: string[] = [];
export const window = {
  tabGroups,
  showWarningMessage(text: string) {
    warnings.push(text);
    return Promise.resolve(undefined);
  },
};
export const commands = {};
export const env = {};
export const Uri = {};
