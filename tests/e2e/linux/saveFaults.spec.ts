import { readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { copyOf, expectWholeAfterKills, savedLengths } from '../stories/cutOffSaves';
import { expect, type ProgramSandbox, test } from '../support/linux/fixtures';
import { barShows, enterValue, savedValues, shown } from '../support/linux/nativeDocument';
import { noNotice, noticeSays, noticeText } from '../support/linux/notice';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { tools } from '../support/shared/paths';

/** A sandbox whose documents are on a disk of their own, of so many KiB, with one document on it. */
function onSmallDisk(
  sandbox: ProgramSandbox,
  kibibytes: number,
  name: string,
  text: string,
): { command: string[]; file: string } {
  const source = sandbox.write('../before', text);
  const steps = [
    `mount -t tmpfs -o size=${kibibytes}k tmpfs "$1"`,
    'cp "$2" "$3"', // the program finds it there
    'shift 3',
    'exec "$@"',
  ];
  const file = `${sandbox.documents}/${name}`;
  const script = ['sh', '-c', steps.join(' && '), 'sh', sandbox.documents, source, file];
  return { command: ['unshare', '--map-root-user', '--mount', ...script, sandbox.program], file };
}

const read = async (program: Program, file: string) => (await program.call('readFile', file)).data;

test('on a full disk the document stays as it was', async ({ open, sandbox }) => {
  const before = documentText({ int: '0x5' });
  const { command, file } = onSmallDisk(sandbox, 64, 'mine.words.tessary', before);
  const program = await open([file], { command });
  const write = (name: string, text: string) => program.call('writeFile', `${sandbox.documents}/${name}`, text);
  expect(await write('fills the disk', 'x'.repeat(100_000))).toEqual({ success: true });
  expect(await write('mine.words.tessary', 'new')).toEqual({ success: false, error: 'file-write-failed' });
  const rescued = join(sandbox.home, '.local/state/tessary/mine (not saved).words.tessary');
  await noticeSays(program, '2 documents could not be saved', 'No space left on device', file, rescued);
  expect(readFileSync(rescued, 'utf8')).toBe('new');
  expect(await read(program, file)).toBe(before);
  for (const left of [copyOf(file), `${copyOf(file)}.incomplete`]) {
    expect((await program.call('readFile', left)).error, left).toBe('file-not-found');
  }

  // With room again it is saved.
  await write('fills the disk', '');
  await enterValue(program, '1234567');
  await barShows(program, 'mine.words.tessary*');
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  expect(JSON.parse((await read(program, file)) ?? '').sheets[0].int).toBe('0x12d687');
  await noNotice(program);
});

test('a disk that becomes full while a document is written has the whole new text in its copy', async ({
  open,
  sandbox,
}) => {
  const { command, file } = onSmallDisk(sandbox, 400, 'mine.words.tessary', 'old');
  const program = await open([], { command });
  const text = 'x'.repeat(300_000);
  const answer = await program.page.evaluate(
    (path, length) => {
      const { writeFile } = window as unknown as { writeFile: (path: string, text: string) => Promise<unknown> };
      return writeFile(path, 'x'.repeat(length));
    },
    file,
    text.length,
  );
  expect(answer).toEqual({ success: true });
  expect((await read(program, file))?.length).toBeLessThan(text.length);
  expect(await read(program, copyOf(file))).toBe(text);
  await noticeSays(program, '“mine.words.tessary” could not be saved', 'No space left on device', copyOf(file));
});

for (const length of savedLengths) {
  test(`a program that is killed while it saves ${length} bytes leaves a document that opens whole`, async ({
    open,
    sandbox,
  }) => {
    const file = sandbox.write('mine.words.tessary', 'a'.repeat(length));
    await expectWholeAfterKills(open, { file, seen: file, length, kills: 3 });
  });
}

test('a save that was cut off is finished when the document is opened', async ({ open, sandbox }) => {
  const text = documentText({ int: '0xff' });
  const file = sandbox.write('mine.words.tessary', text.slice(0, 100));
  sandbox.write('mine.words.tessary.new-text', text);
  const program = await open([file]);
  await shown(program, '255');
  expect(readFileSync(file, 'utf8')).toBe(text);
  expect(readdirSync(sandbox.documents)).toEqual(['mine.words.tessary']);
});

test('a text that was never written is moved aside by the next save, and opens like any document', async ({
  open,
  sandbox,
}) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  sandbox.write('mine.words.tessary.new-text', documentText({ int: '0xff' }));
  const program = await open([file]);
  await shown(program, '5');
  await enterValue(program, '7');
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  expect(savedValues(file)).toEqual(['0x7']);
  const aside = `${copyOf(file)}.1`;
  expect(readdirSync(sandbox.documents)).toEqual(['mine.words.tessary', 'mine.words.tessary.new-text.1']);
  await shown(await open([aside]), '255');
});

test('the copy of a save that was cut off opens like any document', async ({ open, sandbox }) => {
  const text = documentText({ int: '0xff' });
  sandbox.write('mine.words.tessary', text.slice(0, 100));
  const copy = sandbox.write('mine.words.tessary.new-text', text);
  const program = await open([copy]);
  await shown(program, '255');
  await enterValue(program, '7');
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary.new-text');
  expect(savedValues(copy)).toEqual(['0x7']);
});

test('a document that cannot be flushed is reported, with its text in the copy, until it can', async ({
  open,
  sandbox,
}) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const env = { LD_PRELOAD: `${tools}/failing_flush.so`, FAILING_FLUSH: file };
  const program = await open([file], { env });
  for (const value of ['6', '7']) {
    await enterValue(program, value);
    program.desktop.press('ctrl+s');
    await barShows(program, 'mine.words.tessary');
    await noticeSays(program, '“mine.words.tessary” could not be saved', 'Input/output error', copyOf(file));
    expect(savedValues(copyOf(file))).toEqual([`0x${value}`]);
    expect(readdirSync(sandbox.documents)).toEqual(['mine.words.tessary', 'mine.words.tessary.new-text']);
  }
  await program.close();
  await shown(await open([file]), '7');
  expect(readdirSync(sandbox.documents)).toEqual(['mine.words.tessary']);
});

test('a notice waits for nothing: the page goes on, and Escape closes it', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('mine.words.tessary', documentText({ int: '0x5' }))]);
  const gone = join(sandbox.documents, 'gone', 'other.words.tessary');
  expect(await program.call('writeFile', gone, 'text')).toEqual({ success: false, error: 'file-write-failed' });
  const notice = await noticeSays(program, 'No such file or directory');
  await enterValue(program, '7');
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  program.desktop.focus(notice);
  program.desktop.press('Escape');
  await noNotice(program);
  expect(await program.close()).toBe(0);
});

test('failures of one document are one notice, which goes with the program', async ({ open, sandbox }) => {
  const program = await open();
  const gone = join(sandbox.documents, 'gone', 'mine.words.tessary');
  for (const text of ['first', 'second', 'third']) await program.call('writeFile', gone, text);
  await noticeSays(program, '“mine.words.tessary” could not be saved', gone);
  expect(noticeText(program).split(gone)).toHaveLength(2);
  expect(program.windows()).toHaveLength(2);
  const folder = join(sandbox.home, '.local/state/tessary');
  expect(readdirSync(folder)).toEqual(['mine (not saved).words.tessary']);
  expect(readFileSync(join(folder, 'mine (not saved).words.tessary'), 'utf8')).toBe('third');
  expect(await program.close()).toBe(0);
});

test('what another program wrote into a document is kept beside it', async ({ open, sandbox }) => {
  const file = sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const program = await open([file]);
  await enterValue(program, '7');
  const other = documentText({ int: '0xffff' });
  sandbox.write('mine.words.tessary', other);
  program.desktop.press('ctrl+s');
  await barShows(program, 'mine.words.tessary');
  expect(savedValues(file)).toEqual(['0x7']);
  expect(readFileSync(`${file}.before-save`, 'utf8')).toBe(other);
  await noticeSays(program, '“mine.words.tessary” was changed by another program', `${file}.before-save`);
  expect(await program.close()).toBe(0);
});
