import { env, Range, type TextDocument, Uri, type Webview, window, workspace, WorkspaceEdit } from 'vscode';
import type { WordsDocumentData } from '../../../web/src/document/schema';
import { isWordsDocument } from '../../../web/src/document/wordsDocument';
import { readDocument } from './document';
import { editsFor, type TextEdit, withEdits } from './documentEdits';
import { merged } from './documentMerge';
import type { ExtensionMessage, PageMessage, PageUpdate } from './messages';
import { offerText } from './offerText';
import { isReadOnly, reportReadOnly } from './readOnly';
import { placeAt, unified } from './textPlaces';

/** How long a save waits for a page that does not answer, in milliseconds. */
const PATIENCE = 1000;
/** How often an edit is tried that others come before. */
const MERGE_TRIES = 10;

/** One web view and the text document that it shows. Lives as long as the view. */
export class Session {
  /** The text that the page was sent, or that came of its last edit; undefined before the page asks for it. */
  #shown: string | undefined;
  /** The number of the document that the page was sent last. */
  #number = 0;
  /**
   * What the page shows, as it would post it, by the number of the document that it was sent. Older ones than the last
   * are kept for edits that were under way when another document was sent.
   */
  readonly #pages = new Map<number, WordsDocumentData>();
  #edits = Promise.resolve();
  #onFlushed: (() => void) | undefined;
  readonly #listeners;
  readonly #isReadOnly: Promise<boolean>;

  constructor(
    readonly document: TextDocument,
    readonly webview: Webview,
  ) {
    this.#isReadOnly = isReadOnly(document);
    this.#listeners = [
      webview.onDidReceiveMessage((message: PageMessage) => this.#receive(message)),
      workspace.onDidChangeTextDocument((event) => event.document === document && this.#follow()),
      workspace.onWillSaveTextDocument((event) => event.document === document && event.waitUntil(this.#settle())),
    ];
  }

  dispose(): void {
    for (const listener of this.#listeners) listener.dispose();
  }

  get #text(): string {
    return unified(this.document.getText());
  }

  #receive(message: PageMessage): void {
    if (message.type === 'ready') this.#deliver();
    else if (message.type === 'flushed') this.#onFlushed?.();
    else if (message.type === 'openExternalUrl') void openLink(message.url);
    else this.#edits = this.#edits.then(() => this.#edit(message)).catch(console.error);
  }

  #post(message: ExtensionMessage): void {
    void this.webview.postMessage(message);
  }

  #deliver(): void {
    const text = this.#text;
    const reading = readDocument(text);
    this.#shown = text;
    this.#number++;
    if (reading.kind === 'words') this.#pages.set(this.#number, reading.shown);
    this.#post({ type: 'document', number: this.#number, data: { rawContent: text } });
    if (reading.kind !== 'words') void offerText(this.document.uri, reading);
  }

  /** Shows what another editor, undo, revert or the disk made of the text. */
  #follow(): void {
    if (this.#shown !== undefined && this.#text !== this.#shown) this.#deliver();
  }

  async #edit({ data, seen }: PageUpdate): Promise<void> {
    try {
      if (await this.#isReadOnly) return this.#refuse();
      const before = this.#pages.get(seen);
      if (before && isWordsDocument(data)) await this.#take(seen, before, data);
      else void offerText(this.document.uri, readDocument(this.#text), 'Nothing was changed: ');
    } finally {
      this.#post({ type: 'taken' });
    }
  }

  #refuse(): void {
    this.#deliver();
    reportReadOnly(this.document);
  }

  async #take(seen: number, before: WordsDocumentData, now: WordsDocumentData): Promise<void> {
    for (const number of this.#pages.keys()) if (number < seen) this.#pages.delete(number);
    this.#pages.set(seen, now);
    if (seen === this.#number) {
      const text = this.#text;
      const edits = editsFor(text, before, now);
      this.#shown = withEdits(text, edits);
      if (await this.#apply(text, edits)) return;
    }
    await this.#merge(before, now);
    this.#follow();
  }

  /** Puts the page's edit into a text that another editor, undo, revert or the disk changed at the same time. */
  async #merge(before: WordsDocumentData, now: WordsDocumentData): Promise<void> {
    for (let tries = 0; tries < MERGE_TRIES; tries++) {
      const text = this.#text;
      const reading = readDocument(text);
      if (reading.kind !== 'words') return;
      if (await this.#apply(text, editsFor(text, reading.shown, merged(before, now, reading.shown)))) return;
    }
  }

  /** @returns whether the text was still the one that the edits are for */
  async #apply(text: string, edits: readonly TextEdit[]): Promise<boolean> {
    if (edits.length === 0) return true;
    const change = new WorkspaceEdit();
    for (const { offset, length, text: inserted } of edits) {
      change.replace(this.document.uri, new Range(placeAt(text, offset), placeAt(text, offset + length)), inserted);
    }
    return workspace.applyEdit(change);
  }

  /** Waits until the page's last edit is in the text. */
  async #settle(): Promise<[]> {
    await new Promise<void>((resolve) => {
      this.#onFlushed = resolve;
      setTimeout(resolve, PATIENCE);
      this.#post({ type: 'flush' });
    });
    await this.#edits;
    return [];
  }
}

/** The editor asks its user whether to trust the link. */
async function openLink(url: string): Promise<void> {
  if (/^(https?|mailto):/i.test(url)) await env.openExternal(Uri.parse(url, true));
  else await window.showErrorMessage(`This link cannot be opened: ${url}`);
}
