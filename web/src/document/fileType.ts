/** A kind of file as the dialogs of every host offer it. */
export interface FileType {
  /** Shown to the user. */
  readonly name: string;
  /** Each with its leading dot, the preferred one first. */
  readonly extensions: readonly string[];
  readonly mimeType: string;
  /** With its leading dot. */
  readonly defaultExt: string;
}

export const WORDS_FILE_TYPE: FileType = {
  name: 'Tessary Files',
  extensions: ['.words.tessary', '.tessary'],
  mimeType: 'application/json',
  defaultExt: '.words.tessary',
};

/** The name of a document until it is first saved. */
export const UNTITLED_FILE_NAME = 'Untitled.words.tessary';

/** Whether a file name ends as documents of this type do, in any letter case. */
export function hasExtensionOf(type: FileType, fileName: string): boolean {
  const name = fileName.toLowerCase();
  return type.extensions.some((extension) => name.endsWith(extension));
}
