import { Position } from 'vscode';

/** A text with "\n" at the end of every line. */
export function unified(text: string): string {
  return text.replace(/\r\n?/g, '\n');
}

/** The line and column of an offset in a unified text. */
export function placeAt(text: string, offset: number): Position {
  const before = text.slice(0, offset);
  const begin = before.lastIndexOf('\n') + 1;
  return new Position(before.split('\n').length - 1, offset - begin);
}
