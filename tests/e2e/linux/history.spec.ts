import { test } from '../support/linux/fixtures';
import { barShows, enterValue, shown } from '../support/linux/nativeDocument';
import { documentText } from '../support/shared/documents';

test('the keys undo and redo what was entered, and the mark follows', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  await enterValue(program, '77');
  await enterValue(program, '78');
  program.desktop.press('ctrl+z');
  await shown(program, '77');
  program.desktop.press('ctrl+z');
  await shown(program, '5');
  await barShows(program, 'mine.words.tessary');
  program.desktop.press('ctrl+shift+z');
  await shown(program, '77');
  await barShows(program, 'mine.words.tessary*');
  program.desktop.press('ctrl+y');
  await shown(program, '78');
});

test('in a text that is being typed the key undoes typing first', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  await enterValue(program, '77');
  program.desktop.press('End');
  program.desktop.type('8');
  await shown(program, '778');
  program.desktop.press('ctrl+z');
  await shown(program, '77');
  await barShows(program, 'mine.words.tessary*');
  program.desktop.press('ctrl+z');
  await shown(program, '5');
  await barShows(program, 'mine.words.tessary');
});
