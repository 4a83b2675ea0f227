import { mkdirSync, readFileSync, rmSync } from 'node:fs';
import { join } from 'node:path';
import { FileDialog } from '../support/linux/dialog';
import { expect, test } from '../support/linux/fixtures';
import { barShows, enterValue, savedValues, shown } from '../support/linux/nativeDocument';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

const filters = ['Tessary Files (*.words.tessary;*.tessary)', 'All Files (*.*)'];

test('a document from the command line is edited and saved without a dialog', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const program = await open([file]);
  await enterValue(program, '1234567');
  await barShows(program, 'mine.words.tessary*');
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  expect(savedValues(file)).toEqual(['0x12d687']);
  expect(program.windows()).toHaveLength(1);
  expect(await program.close()).toBe(0);
  const again = await open([file]);
  await shown(again, '1234567');
});

test('a document is saved under another name and opened again by dialog', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const program = await open([file]);
  await enterValue(program, '255');
  program.desktop.press('ctrl+shift+s');
  const saving = await FileDialog.shown(program, 'Save As');
  expect(saving.filters()).toEqual(filters);
  expect(saving.typed()).toBe('mine.words.tessary');
  await saving.type(join(sandbox.documents, 'other'));
  await saving.confirm();
  await barShows(program, 'other.words.tessary');
  expect(savedValues(join(sandbox.documents, 'other.words.tessary'))).toEqual(['0xff']);
  expect(savedValues(file)).toEqual(['0x5']);

  program.desktop.focus(program.window);
  program.desktop.press('ctrl+o');
  const opening = await FileDialog.shown(program, 'Open');
  expect(opening.filters()).toEqual(filters);
  await opening.type(file);
  await opening.confirm();
  await barShows(program, 'mine.words.tessary');
  await shown(program, '5');
});

test('a cancelled open dialog leaves the document as it is', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  await shown(program, '5');
  program.desktop.focus(program.window);
  program.desktop.press('ctrl+o');
  await (await FileDialog.shown(program, 'Open')).cancel();
  await barShows(program, 'mine.words.tessary');
  await shown(program, '5');
});

test('a file that is no document is refused and the open one stays', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  await shown(program, '5');
  program.desktop.focus(program.window);
  program.desktop.press('ctrl+o');
  const dialog = await FileDialog.shown(program, 'Open');
  await dialog.type(sandbox.write('broken.tessary', '{"tool": "words"'));
  await dialog.confirm();
  await program.shows('Failed to parse document data: Invalid JSON');
  await barShows(program, 'mine.words.tessary');
});

test('what is not saved is asked about before another document replaces it', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  await enterValue(program, '6');
  program.desktop.press('ctrl+n');
  await program.shows('You have unsaved changes. Do you want to discard them?');
  program.desktop.press('Escape');
  await until('the question to go', async () => !(await program.text()).includes('Do you want to discard them?'));
  await shown(program, '6');
});

test('a reload while something is not saved is asked about, and a target that cannot be written is not noticed', async ({
  open,
  sandbox,
}) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const program = await open([file]);
  await enterValue(program, '6');
  program.desktop.press('F5');
  await program.shows('You have unsaved changes. Do you want to discard them?');
  program.desktop.press('Escape');
  await until('the question to go', async () => !(await program.text()).includes('Do you want to discard them?'));

  rmSync(file);
  mkdirSync(file);
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  await shown(program, '6');
});

test('a sheet name with a delete character is saved and opened again', async ({ open, sandbox }) => {
  const name = 'odd \u007f name';
  const file = sandbox.write('odd.words.tessary', documentText({ displayName: name }));
  const program = await open([file]);
  await enterValue(program, '7');
  program.desktop.press('ctrl+s');
  await barShows(program, 'odd.words.tessary');
  const text = readFileSync(file, 'utf8');
  expect(text).toContain('"odd \\u007f name"');
  expect(JSON.parse(text).sheets[0].displayName).toBe(name);
  expect(savedValues(file)).toEqual(['0x7']);
});

test('a document of a thousand sheets opens', async ({ open, sandbox }) => {
  const sheets = Array.from({ length: 1000 }, (_, i) => ({ displayName: `Sheet ${i}`, int: `0x${i.toString(16)}` }));
  const program = await open([sandbox.write('many.words.tessary', documentText(...sheets))]);
  await program.shows('Sheet 0');
  await barShows(program, 'many.words.tessary');
});

test('the page may load nothing from elsewhere', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const blocked = await program.page.evaluate(
    () =>
      new Promise<string>((resolve) => {
        document.addEventListener('securitypolicyviolation', (event) => resolve(event.violatedDirective));
        const picture = document.createElement('img');
        picture.src = 'http://127.0.0.1:1/picture.png';
        document.body.append(picture);
      }),
  );
  expect(blocked).toBe('img-src');
});
