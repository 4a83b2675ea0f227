import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';
import { click } from '../support/windows/click';
import { CommonDialog } from '../support/windows/commonDialog';
import { expect, test } from '../support/windows/fixtures';

test.setTimeout(120_000);

const documentFilters = ['Tessary Files (*.words.tessary;*.tessary)', 'All Files (*.*)'];

function textOnDisk(folder: string, name: string): string {
  return readFileSync(join(folder, name), 'utf8');
}

/** Every line of the text ends in CR LF or is its last. */
function expectWindowsLines(text: string) {
  expect(text).toContain('\r\n');
  expect(text.replaceAll('\r\n', '')).not.toMatch(/[\r\n]/);
}

test('a new document asks for its place once and is saved there from then on', async ({ open, sandbox }) => {
  sandbox.write('makes this folder the first one.tessary');
  const program = await open();
  await click(program, 'Open Words Tool');
  await click(program, 'Create Document');
  await program.shows('Untitled.words.tessary*');
  await click(program, 'Save');
  const dialog = await CommonDialog.shown(program, 'Save As');
  expect(dialog.typed()).toBe('Untitled.words.tessary');
  expect(dialog.filters()).toEqual(documentFilters);
  await dialog.type('numbers.words.tessary');
  await dialog.confirm();
  await program.shows('numbers.words.tessary');
  const first = await until('the document on disk', () => textOnDisk(sandbox.documents, 'numbers.words.tessary'));
  expectWindowsLines(first);
  await click(program, 'Add sheet');
  await program.shows('numbers.words.tessary*');
  await click(program, 'Save');
  await until('the second sheet on disk', () =>
    textOnDisk(sandbox.documents, 'numbers.words.tessary').includes('"Number B"'),
  );
  expectWindowsLines(textOnDisk(sandbox.documents, 'numbers.words.tessary'));
  expect(program.windows()).toHaveLength(1);
});

test('Save As puts the document into another file and leaves the first as it was', async ({ open, sandbox }) => {
  const before = documentText({ displayName: 'Übung 漢字 😀' }).replaceAll('\n', '\r\n');
  sandbox.write('first.words.tessary', before);
  const program = await open(['first.words.tessary']);
  await program.shows('Übung 漢字 😀');
  await click(program, 'Save As');
  const dialog = await CommonDialog.shown(program, 'Save As');
  expect(dialog.typed()).toBe('first.words.tessary');
  await dialog.type('second.words.tessary');
  await dialog.confirm();
  await program.shows('second.words.tessary');
  const second = textOnDisk(sandbox.documents, 'second.words.tessary');
  expectWindowsLines(second);
  expect(JSON.parse(second)).toMatchObject({ tool: 'words', version: 1, sheets: [{ displayName: 'Übung 漢字 😀' }] });
  expect(textOnDisk(sandbox.documents, 'first.words.tessary')).toBe(before);
});

test('a document is opened through the dialog, edited and saved back to its file', async ({ open, sandbox }) => {
  sandbox.write('mine.words.tessary', documentText({ displayName: 'Mine' }));
  const program = await open();
  await click(program, 'Open Words Tool');
  await click(program, 'Open Document');
  const dialog = await CommonDialog.shown(program, 'Open');
  expect(dialog.filters()).toEqual(documentFilters);
  await dialog.type('mine.words.tessary');
  await dialog.confirm();
  await program.shows('Mine');
  await click(program, 'Add sheet');
  await click(program, 'Save');
  await until('the second sheet on disk', () =>
    textOnDisk(sandbox.documents, 'mine.words.tessary').includes('"Number A"'),
  );
  expectWindowsLines(textOnDisk(sandbox.documents, 'mine.words.tessary'));
});
