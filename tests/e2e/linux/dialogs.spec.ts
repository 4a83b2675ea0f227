import { join } from 'node:path';
import { FileDialog, MessageBox } from '../support/linux/dialog';
import { expect, test } from '../support/linux/fixtures';

test.setTimeout(120_000);

const cancelled = { success: false, error: 'user-cancelled' };
const json = ['JSON', '*.json;*.txt'];
const jsonFilters = ['JSON (*.json;*.txt)', 'All Files (*.*)'];
const allFiles = 'All Files (*.*)';

test('the open dialog gives the path that is typed', async ({ open, sandbox }) => {
  const program = await open();
  const file = sandbox.write('a document.json');
  const answer = program.call('showOpenDialog', ...json);
  const dialog = await FileDialog.shown(program, 'Open');
  expect(dialog.filters()).toEqual(jsonFilters);
  expect(dialog.chosenFilter()).toBe(jsonFilters[0]);
  await dialog.type(file);
  await dialog.confirm();
  expect(await answer).toEqual({ success: true, path: file });
});

test('the open dialog gives a path that is not ASCII as UTF-8', async ({ open, sandbox }) => {
  const program = await open();
  const file = sandbox.write('Übung 漢字 😀.json');
  const answer = program.call('showOpenDialog', ...json);
  const dialog = await FileDialog.shown(program, 'Open');
  await dialog.type(file);
  await dialog.confirm();
  expect(await answer).toEqual({ success: true, path: file });
});

test('the open dialog refuses a name that does not exist', async ({ open, sandbox }) => {
  const program = await open();
  const file = sandbox.write('there.json');
  const answer = program.call('showOpenDialog', ...json);
  const dialog = await FileDialog.shown(program, 'Open');
  await dialog.type(join(sandbox.documents, 'gone.json'));
  await dialog.confirm();
  const message = await MessageBox.shown(program);
  expect(message.text).toContain('gone.json');
  await message.answer('Return');
  const again = await FileDialog.shown(program, 'Open');
  await expect.poll(() => again.list()).toContain('there.json'); // in the folder where that one was sought
  await again.type(file);
  await again.confirm();
  expect(await answer).toEqual({ success: true, path: file });
});

test('a dialog that is cancelled says so', async ({ open }) => {
  const program = await open();
  const opening = program.call('showOpenDialog');
  await (await FileDialog.shown(program, 'Open')).cancel();
  expect(await opening).toEqual(cancelled);
  const saving = program.call('showSaveDialog');
  await (await FileDialog.shown(program, 'Save As')).cancel();
  expect(await saving).toEqual(cancelled);
});

test('without arguments both dialogs offer all files twice, and mean all of them', async ({ open, sandbox }) => {
  sandbox.write('no extension');
  const program = await open();
  const opening = program.call('showOpenDialog');
  const openDialog = await FileDialog.shown(program, 'Open');
  expect(openDialog.filters()).toEqual([allFiles, allFiles]);
  await openDialog.cancel();
  await opening;
  const saving = program.call('showSaveDialog');
  const saveDialog = await FileDialog.shown(program, 'Save As');
  expect(saveDialog.filters()).toEqual([allFiles, allFiles]);
  expect(saveDialog.chosenFilter()).toBe(allFiles);
  await expect.poll(() => saveDialog.list()).toContain('no extension');
  await saveDialog.cancel();
  await saving;
});

test('an argument that is missing, empty or of another kind has its default', async ({ open }) => {
  const program = await open();
  for (const { given, filters } of [
    { given: [null, '*.json'], filters: ['All Files (*.json)', allFiles] },
    { given: ['', '*.json'], filters: [allFiles] },
    { given: ['JSON', ''], filters: [allFiles] },
    { given: [7, {}], filters: [allFiles, allFiles] },
  ]) {
    const answer = program.call('showOpenDialog', ...given);
    const dialog = await FileDialog.shown(program, 'Open');
    expect(dialog.filters()).toEqual(filters);
    await dialog.cancel();
    expect(await answer).toEqual(cancelled);
  }
});

test('only files that match the filter are listed', async ({ open, sandbox }) => {
  for (const name of ['one.json', 'two.txt', 'three.words.tessary', 'four']) sandbox.write(name);
  const program = await open();
  const answer = program.call('showSaveDialog', '', ...json, '');
  const dialog = await FileDialog.shown(program, 'Save As');
  await expect.poll(() => dialog.list()).toEqual(expect.arrayContaining(['one.json', 'two.txt']));
  expect(dialog.list()).not.toContain('three.words.tessary');
  expect(dialog.list()).not.toContain('four');
  await dialog.cancel();
  await answer;
});

test('the save dialog offers the given name', async ({ open, sandbox }) => {
  const program = await open();
  const name = 'é 漢字 😀.json';
  const answer = program.call('showSaveDialog', name, ...json, 'json');
  const dialog = await FileDialog.shown(program, 'Save As');
  expect(dialog.filters()).toEqual(jsonFilters);
  await expect.poll(() => dialog.typed()).toBe(name);
  await dialog.confirm();
  expect(await answer).toEqual({ success: true, path: join(sandbox.documents, name) });
});

test('the save dialog completes a name that has no extension', async ({ open, sandbox }) => {
  const program = await open();
  for (const { typed, chosen } of [
    { typed: 'plain', chosen: 'plain.words.tessary' },
    { typed: 'with.dot', chosen: 'with.dot' },
  ]) {
    const answer = program.call('showSaveDialog', '', ...json, 'words.tessary');
    const dialog = await FileDialog.shown(program, 'Save As');
    await dialog.type(typed);
    await dialog.confirm();
    expect(await answer).toEqual({ success: true, path: join(sandbox.documents, chosen) });
  }
});

test('saving over a file is asked about, and can be declined or agreed to', async ({ open, sandbox }) => {
  const file = sandbox.write('there.json');
  const program = await open();
  const answer = program.call('showSaveDialog', 'there.json', ...json, 'json');
  const dialog = await FileDialog.shown(program, 'Save As');
  await dialog.confirm();
  const question = await MessageBox.shown(program);
  expect(question.text).toContain('“there.json” already exists');
  await question.answer('Escape');
  await (await FileDialog.shown(program, 'Save As')).confirm();
  await (await MessageBox.shown(program)).answer('alt+r');
  expect(await answer).toEqual({ success: true, path: file });
});

test('a file that only the extension finds is asked about as well', async ({ open, sandbox }) => {
  const file = sandbox.write('there.json');
  const program = await open();
  const answer = program.call('showSaveDialog', 'there', ...json, 'json');
  await (await FileDialog.shown(program, 'Save As')).confirm();
  const question = await MessageBox.shown(program);
  // The toolkit's dialog may have completed the name by then, and asks in its own words.
  expect(question.text).toContain('“there.json” already exists');
  await question.answer('alt+c');
  await (await FileDialog.shown(program, 'Save As')).confirm();
  await (await MessageBox.shown(program)).answer('alt+r');
  expect(await answer).toEqual({ success: true, path: file });
});

test('two dialogs asked for at once come one after the other, and other calls wait', async ({ open, sandbox }) => {
  const program = await open();
  const file = sandbox.write('read me', 'text');
  const order: string[] = [];
  const noting = <Answer>(name: string, answer: Promise<Answer>) => answer.finally(() => order.push(name));
  const opening = noting('open', program.call('showOpenDialog'));
  const saving = noting('save', program.call('showSaveDialog'));
  const reading = noting('read', program.call('readFile', file));
  const first = await FileDialog.shown(program, 'Open');
  expect(program.windows().filter(({ title }) => title === 'Save As')).toEqual([]);
  await first.cancel();
  const second = await FileDialog.shown(program, 'Save As');
  expect(program.windows().filter(({ title }) => title === 'Open')).toEqual([]);
  await expect.poll(() => order).toEqual(['open']);
  await second.cancel();
  expect(await Promise.all([opening, saving, reading])).toEqual([
    cancelled,
    cancelled,
    { success: true, data: 'text' },
  ]);
  expect(order).toEqual(['open', 'save', 'read']);
});

test('the window stays open as long as a dialog waits for its answer', async ({ open }) => {
  const program = await open();
  const answer = program.call('showOpenDialog');
  const dialog = await FileDialog.shown(program, 'Open');
  program.desktop.close(program.window);
  await dialog.cancel();
  expect(await answer).toEqual(cancelled);
  expect(await program.close()).toBe(0);
});
