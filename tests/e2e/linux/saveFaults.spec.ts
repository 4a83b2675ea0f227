import { copyOf, expectWholeAfterKill, savedLengths } from '../stories/cutOffSaves';
import { expect, type ProgramSandbox, test } from '../support/linux/fixtures';
import { barShows, enterValue, savedValues, shown } from '../support/linux/nativeDocument';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';

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
});

for (const length of savedLengths) {
  test(`a program that is killed while it saves ${length} bytes leaves one whole text`, async ({ open, sandbox }) => {
    const file = sandbox.write('mine.words.tessary', 'a'.repeat(length));
    for (let kill = 0; kill < 3; kill++) await expectWholeAfterKill(await open(), file, file, length);
  });
}

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
