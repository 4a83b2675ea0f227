import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { CommonDialog, MessageBox } from '../support/windows/commonDialog';
import { expect, test } from '../support/windows/fixtures';

test.setTimeout(120_000);

const cancelled = { success: false, error: 'user-cancelled' };
const json = ['JSON', '*.json;*.txt'];
const jsonFilters = ['JSON (*.json;*.txt)', 'All Files (*.*)'];
const allFiles = 'All Files (*.*)';

test('the open dialog gives the path that is typed', async ({ open, sandbox }) => {
  const program = await open();
  sandbox.write('a document.json');
  const answer = program.call('showOpenDialog', ...json);
  const dialog = await CommonDialog.shown(program, 'Open');
  expect(dialog.filters()).toEqual(jsonFilters);
  expect(dialog.chosenFilter()).toBe(jsonFilters[0]);
  await dialog.type(sandbox.windowsPath('a document.json'));
  await dialog.confirm();
  expect(await answer).toEqual({ success: true, path: sandbox.windowsPath('a document.json') });
});

test('the open dialog gives a path that is not ASCII as UTF-8, which readFile takes for other bytes', async ({
  open,
  sandbox,
}) => {
  const program = await open();
  sandbox.write('übung é.json', 'text');
  const answer = program.call('showOpenDialog', ...json);
  const dialog = await CommonDialog.shown(program, 'Open');
  await dialog.type('übung é.json');
  await dialog.confirm();
  const path = sandbox.windowsPath('übung é.json');
  expect(await answer).toEqual({ success: true, path });
  expect(await program.call('readFile', path)).toEqual({ success: false, error: 'file-not-found' });
});

test('the open dialog refuses a name that does not exist', async ({ open, sandbox }) => {
  const program = await open();
  sandbox.write('there.json');
  const answer = program.call('showOpenDialog', ...json);
  const dialog = await CommonDialog.shown(program, 'Open');
  await dialog.type('gone.json');
  await dialog.confirm();
  const message = await MessageBox.shown(program);
  expect(message.text).toBe('File does not exist');
  await message.answer('Return');
  await dialog.type('there.json');
  await dialog.confirm();
  expect(await answer).toEqual({ success: true, path: sandbox.windowsPath('there.json') });
});

test('a dialog that is cancelled says so', async ({ open }) => {
  const program = await open();
  const opening = program.call('showOpenDialog');
  await (await CommonDialog.shown(program, 'Open')).cancel();
  expect(await opening).toEqual(cancelled);
  const saving = program.call('showSaveDialog');
  await (await CommonDialog.shown(program, 'Save As')).cancel();
  expect(await saving).toEqual(cancelled);
});

test('an argument that is missing, empty or of another kind has its default', async ({ open }) => {
  const program = await open();
  for (const { given, filters } of [
    { given: [], filters: [allFiles, allFiles] },
    { given: [null, '*.json'], filters: ['All Files (*.json)', allFiles] },
    { given: ['', '*.json'], filters: [allFiles] },
    { given: ['JSON', ''], filters: [allFiles] },
    { given: [7, {}], filters: [allFiles, allFiles] },
    { given: ['é 漢字', '*.é'], filters: ['é 漢字 (*.é)', allFiles] },
  ]) {
    const answer = program.call('showOpenDialog', ...given);
    const dialog = await CommonDialog.shown(program, 'Open');
    expect(dialog.filters()).toEqual(filters);
    await dialog.cancel();
    expect(await answer).toEqual(cancelled);
  }
});

test('the save dialog offers the given name', async ({ open, sandbox }) => {
  const program = await open();
  sandbox.write('makes this folder the first one.json');
  const name = 'é 漢字 😀.json';
  const answer = program.call('showSaveDialog', name, ...json, 'json');
  const dialog = await CommonDialog.shown(program, 'Save As');
  expect(dialog.filters()).toEqual(jsonFilters);
  expect(dialog.typed()).toBe(name);
  await dialog.confirm();
  expect(await answer).toEqual({ success: true, path: sandbox.windowsPath(name) });
});

test('a name that is too long is not offered, and the dialog opens all the same', async ({ open }) => {
  const program = await open();
  const answer = program.call('showSaveDialog', 'x'.repeat(300), ...json, 'json');
  const dialog = await CommonDialog.shown(program, 'Save As');
  expect(dialog.typed()).toBe('');
  await dialog.cancel();
  expect(await answer).toEqual(cancelled);
});

test('the save dialog completes a name that has no extension', async ({ open, sandbox }) => {
  const program = await open();
  sandbox.write('makes this folder the first one.json');
  const answer = program.call('showSaveDialog', '', ...json, 'json');
  const dialog = await CommonDialog.shown(program, 'Save As');
  await dialog.type('plain');
  await dialog.confirm();
  expect(await answer).toEqual({ success: true, path: sandbox.windowsPath('plain.json') });
});

test('saving over a file is asked about, and can be declined or agreed to', async ({ open, sandbox }) => {
  sandbox.write('there.json');
  const program = await open();
  const answer = program.call('showSaveDialog', 'there.json', ...json, 'json');
  const dialog = await CommonDialog.shown(program, 'Save As');
  await dialog.confirm();
  const question = await MessageBox.shown(program);
  expect(question.text).toContain('already exists');
  await question.answer('alt+n');
  await dialog.confirm();
  const again = await MessageBox.shown(program);
  await again.answer('alt+y');
  expect(await answer).toEqual({ success: true, path: sandbox.windowsPath('there.json') });
});

test('calls wait while a dialog is open and are then answered in their order', async ({ open, sandbox }) => {
  const program = await open();
  sandbox.write('read me', 'text');
  const order: string[] = [];
  const noting = <Answer>(name: string, answer: Promise<Answer>) => answer.finally(() => order.push(name));
  const opening = noting('open', program.call('showOpenDialog'));
  const first = await CommonDialog.shown(program, 'Open');
  const writing = noting('write', program.call('writeFile', sandbox.windowsPath('written'), 'text'));
  const saving = noting('save', program.call('showSaveDialog'));
  const reading = noting('read', program.call('readFile', sandbox.windowsPath('read me')));
  // The page itself goes on meanwhile.
  await program.shows('Open Words Tool');
  expect(order).toEqual([]);
  expect(program.windows().map(({ title }) => title)).not.toContain('Save As');
  await first.cancel();
  const second = await CommonDialog.shown(program, 'Save As');
  await expect.poll(() => order).toEqual(['open', 'write']);
  expect(readFileSync(join(sandbox.documents, 'written'), 'utf8')).toBe('text');
  await second.cancel();
  expect(await Promise.all([opening, writing, saving, reading])).toEqual([
    cancelled,
    { success: true },
    cancelled,
    { success: true, data: 'text' },
  ]);
  expect(order).toEqual(['open', 'write', 'save', 'read']);
});

test('the folder in which the program was started stays its own after a dialog in another', async ({
  open,
  sandbox,
}) => {
  sandbox.write('elsewhere/there.json');
  const program = await open();
  const answer = program.call('showOpenDialog', ...json);
  const dialog = await CommonDialog.shown(program, 'Open');
  await dialog.type(sandbox.windowsPath('elsewhere\\there.json'));
  await dialog.confirm();
  await answer;
  expect(await program.call('writeFile', 'here.json', 'text')).toEqual({ success: true });
  expect(readFileSync(join(sandbox.documents, 'here.json'), 'utf8')).toBe('text');
});
