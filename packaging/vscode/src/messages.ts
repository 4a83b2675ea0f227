import type { WordsDocumentData } from '../../../web/src/document/schema';

/** What the web view posts to the extension. */
export type PageMessage =
  | { type: 'ready' }
  | { type: 'updateDocument'; data: WordsDocumentData }
  | { type: 'openExternalUrl'; url: string }
  /** Answers "flush": whatever the page had to post came before it. */
  | { type: 'flushed' };

/** What the extension posts to the web view. */
export type ExtensionMessage =
  | { type: 'document'; data: { rawContent: string } }
  /** One "updateDocument" is in the text now, or was refused. */
  | { type: 'taken' }
  /** Asks for what the page would only post in a moment. */
  | { type: 'flush' };
