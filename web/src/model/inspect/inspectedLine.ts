/** One reading of a word. */
export interface InspectedLine {
  /** What the word is read as; the key of the line's label. */
  readonly id: string;
  /** What is shown; the beginning of it where `whole` gives more. */
  readonly text: string;
  /** Gives all of a text that is too long to be worked out before somebody wants it. */
  readonly whole?: () => string;
}

/** The line as a list, which is empty where the reading does not apply. */
export function line(id: string, text: string | undefined): InspectedLine[] {
  return text === undefined ? [] : [{ id, text }];
}
