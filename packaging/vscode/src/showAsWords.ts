import { type TextEditor, window } from 'vscode';
import type { Reading } from '../../../web/src/model/text/reading';
import { readText } from '../../../web/src/model/text/readText';
import { documentTextOf } from './document';
import { openNewDocument } from './newDocument';
import { readingsAround } from './numbersInText';
import { choicesOf, type ReadingChoice, sheetOfChoice } from './readingChoices';

/** Characters around the cursor that are looked at. */
const REACH = 8000;
/** Characters of the text that name the sheet. */
const NAME_LENGTH = 24;

/** Opens what is selected, or what stands at the cursor, as a new Words document. */
export async function showSelection(): Promise<void> {
  const editor = window.activeTextEditor;
  if (!editor) return void window.showInformationMessage('Select a number in a text editor first.');
  const selected = editor.document.getText(editor.selection);
  const readings = selected.trim() === '' ? readingsAtCursor(editor) : readingsOfText(selected);
  await showReadings(readings, selected.trim());
}

/** Opens a number as a new Words document. */
export async function showNumber(text: unknown): Promise<void> {
  if (typeof text === 'string') await showReadings(readingsOfText(text), text);
}

function readingsAtCursor({ document, selection }: TextEditor): readonly Reading[] {
  const place = document.offsetAt(selection.active);
  const start = Math.max(0, place - REACH);
  const text = document.getText().slice(start, place + REACH);
  return readingsAround(text, place - start);
}

function readingsOfText(text: string): readonly Reading[] {
  const readings = readText(text);
  return readings.ok ? readings.value : [];
}

async function showReadings(readings: readonly Reading[], text: string): Promise<void> {
  const choices = choicesOf(readings);
  if (choices.length === 0) return void window.showWarningMessage(whyNone(readings));
  const choice = isPlain(readings) ? choices[0] : await chooseFrom(choices);
  if (choice) await openNewDocument(documentTextOf(sheetOfChoice(choice, nameFor(text))));
}

/** One number that says its base, or is written as numbers usually are, needs no question. */
function isPlain([first]: readonly Reading[]): boolean {
  return first?.kind === 'number';
}

function whyNone(readings: readonly Reading[]): string {
  return readings.length === 0 ? 'There is no number here that can be read.' : 'This is longer than 1024 bits.';
}

function chooseFrom(choices: readonly ReadingChoice[]): Thenable<ReadingChoice | undefined> {
  return window.showQuickPick([...choices], {
    title: 'Show as Words',
    placeHolder: 'Read as',
    matchOnDescription: true,
  });
}

function nameFor(text: string): string {
  const line = text.replace(/\s+/g, ' ');
  if (line === '') return 'Number A';
  return line.length > NAME_LENGTH ? `${line.slice(0, NAME_LENGTH)}…` : line;
}
