import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { expect, test } from '../support/linux/fixtures';

const range = (first: number, last: number) =>
  String.fromCodePoint(...Array.from({ length: last - first + 1 }, (_, i) => first + i));

const texts = [
  'é À ÿ',
  '漢字',
  '😀 👩‍👩‍👧 \u{10FFFD}',
  range(0x80, 0x9f),
  'line\u2028paragraph\u2029end',
  range(0x01, 0x1f),
  'delete \u007f here',
  '"quotes" and \\backslashes\\ and </script>',
  '\uFEFFwith a byte order mark',
];

test('every text of a file comes back through the bridge', async ({ open, sandbox }) => {
  const program = await open();
  for (const text of texts) {
    const file = sandbox.write('text.json', text);
    expect(await program.call('readFile', file)).toEqual({ success: true, data: text });
  }
});

test('every text is written as UTF-8, byte for byte', async ({ open, sandbox }) => {
  const program = await open();
  const file = join(sandbox.documents, 'written.json');
  for (const text of texts.filter((each) => !each.includes('\u007f'))) {
    expect(await program.call('writeFile', file, text)).toEqual({ success: true });
    expect(readFileSync(file, 'utf8')).toBe(text);
  }
});

test('bytes that are not UTF-8 become replacement characters', async ({ open, sandbox }) => {
  const program = await open();
  for (const bytes of [
    [0x61, 0xff, 0x62],
    [0xc3],
    [0xe4, 0xf6, 0xfc, 0x20, 0xdf],
    [0xed, 0xa0, 0x80, 0x21],
    [0xc0, 0xaf],
    [0xf4, 0x90, 0x80, 0x80],
    [0xe2, 0x82, 0x28],
  ]) {
    const file = sandbox.write('latin.txt', Uint8Array.from(bytes));
    const data = new TextDecoder().decode(Uint8Array.from(bytes));
    expect(await program.call('readFile', file)).toEqual({ success: true, data });
  }
});

test('a text ends at its first NUL, in both directions', async ({ open, sandbox }) => {
  const program = await open();
  const file = sandbox.write('nul.txt', 'before\0after');
  expect(await program.call('readFile', file)).toEqual({ success: true, data: 'before' });
  expect(await program.call('writeFile', file, 'kept\0lost')).toEqual({ success: true });
  expect(readFileSync(file, 'latin1')).toBe('kept');
});

test('an empty file is read as a success without data', async ({ open, sandbox }) => {
  const program = await open();
  expect(await program.call('readFile', sandbox.write('empty'))).toEqual({ success: true });
  expect(await program.call('readFile', sandbox.write('starts with NUL', '\0x'))).toEqual({ success: true });
});

test('files that cannot be read or written give their codes', async ({ open, sandbox }) => {
  const program = await open();
  const notFound = { success: false, error: 'file-not-found' };
  expect(await program.call('readFile', join(sandbox.documents, 'gone'))).toEqual(notFound);
  expect(await program.call('readFile', sandbox.documents)).toEqual(notFound);
  expect(await program.call('readFile', '')).toEqual(notFound);
  const notWritten = { success: false, error: 'file-write-failed' };
  expect(await program.call('writeFile', join(sandbox.documents, 'no folder', 'file'), 'x')).toEqual(notWritten);
  expect(await program.call('writeFile', sandbox.documents, 'x')).toEqual(notWritten);
  expect(await program.call('writeFile', '', 'x')).toEqual(notWritten);
});

test('arguments of the wrong kind or number are refused', async ({ open, sandbox }) => {
  const program = await open();
  const refused = { success: false, error: 'invalid-arguments' };
  const file = sandbox.write('kept', 'kept');
  for (const given of [[], [null], [7], [true], [{}], [[file]]]) {
    expect(await program.call('readFile', ...given)).toEqual(refused);
  }
  for (const given of [[], [file], [file, null], [file, 7], [null, 'text'], [file, {}]]) {
    expect(await program.call('writeFile', ...given)).toEqual(refused);
  }
  const withUndefined = await program.page.evaluate(
    (path) => (window as unknown as { writeFile: (...all: unknown[]) => Promise<unknown> }).writeFile(path, undefined),
    file,
  );
  expect(withUndefined).toEqual(refused);
  expect(readFileSync(file, 'utf8')).toBe('kept');
});

test('arguments beyond the wanted ones are ignored', async ({ open, sandbox }) => {
  const program = await open();
  const file = sandbox.write('more', 'old and longer');
  expect(await program.call('writeFile', file, 'new', 3, null)).toEqual({ success: true });
  expect(await program.call('readFile', file, 'more')).toEqual({ success: true, data: 'new' });
});

test('files whose names are not ASCII are read and written', async ({ open, sandbox }) => {
  const program = await open();
  const file = join(sandbox.documents, `Übung 'é' "漢字" \\ 😀.json`);
  expect(await program.call('writeFile', file, 'text')).toEqual({ success: true });
  expect(await program.call('readFile', file)).toEqual({ success: true, data: 'text' });
});

test('50 MB of text go through the page and come out the same', async ({ open, sandbox }) => {
  test.setTimeout(180_000);
  const program = await open();
  const line = 'The quick brown fox, é À ÿ 漢字 😀 "\\" \t jumps.\n';
  const text = line.repeat(Math.ceil(50e6 / Buffer.byteLength(line)));
  const file = sandbox.write('large.txt', text);
  const copy = join(sandbox.documents, 'copy.txt');
  const answers = await program.page.evaluate(
    async (from, to) => {
      type Bound = (...given: string[]) => Promise<{ success: boolean; data?: string }>;
      const { readFile, writeFile } = window as unknown as Record<'readFile' | 'writeFile', Bound>;
      const { success, data = '' } = await readFile(from);
      return { read: success, units: data.length, written: (await writeFile(to, data)).success };
    },
    file,
    copy,
  );
  expect(answers).toEqual({ read: true, units: text.length, written: true });
  expect(readFileSync(copy).equals(readFileSync(file))).toBe(true);
});
