import type { WordsDocumentData } from '../../../web/src/document/schema';

/** `seen` is the number of the document that the page had been sent when it posted its own; 0 before the first. */
export interface PageUpdate {
  type: 'updateDocument';
  data: WordsDocumentData;
  seen: number;
}

/** What the web view posts to the extension. */
export type PageMessage =
  | PageUpdate
  | { type: 'ready' }
  | { type: 'openExternalUrl'; url: string }
  /** Answers "flush": whatever the page had to post came before it. */
  | { type: 'flushed' };

/** What the extension posts to the web view. */
export type ExtensionMessage =
  /** Documents are numbered from 1 on. */
  | { type: 'document'; number: number; data: { rawContent: string } }
  /** One "updateDocument" is in the text now, or was refused. */
  | { type: 'taken' }
  /** Asks for what the page would only post in a moment. */
  | { type: 'flush' };
