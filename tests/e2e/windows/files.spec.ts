import { existsSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { expect, test } from '../support/windows/fixtures';

const controls = String.fromCodePoint(...Array.from({ length: 0x1f }, (_, i) => i + 1)).replace(/[\n\r\x1a]/g, '');

const texts = [
  'é À ÿ',
  '漢字',
  '😀 👩‍👩‍👧 \u{10FFFD}',
  String.fromCodePoint(...Array.from({ length: 0x20 }, (_, i) => 0x80 + i)),
  'line\u2028paragraph\u2029end',
  controls,
  '"quotes" and \\backslashes\\ and </script>',
  '\uFEFFwith a byte order mark',
];

test('lines end in CR LF on disk and in LF on the page', async ({ open, sandbox }) => {
  const program = await open();
  expect(await program.call('writeFile', sandbox.windowsPath('lines'), 'one\ntwo\n')).toEqual({ success: true });
  expect(readFileSync(join(sandbox.documents, 'lines'), 'latin1')).toBe('one\r\ntwo\r\n');
  expect(await program.call('readFile', sandbox.windowsPath('lines'))).toEqual({ success: true, data: 'one\ntwo\n' });
});

test('every text of a file comes back through the bridge', async ({ open, sandbox }) => {
  const program = await open();
  for (const text of texts) {
    sandbox.write('text.json', text);
    expect(await program.call('readFile', sandbox.windowsPath('text.json'))).toEqual({ success: true, data: text });
  }
});

test('every text is written as UTF-8, byte for byte', async ({ open, sandbox }) => {
  const program = await open();
  for (const text of texts) {
    expect(await program.call('writeFile', sandbox.windowsPath('text.json'), text)).toEqual({ success: true });
    expect(readFileSync(join(sandbox.documents, 'text.json'), 'utf8')).toBe(text);
  }
});

test('a text ends at its first NUL, in both directions', async ({ open, sandbox }) => {
  const program = await open();
  sandbox.write('with zero.txt', 'before\0after');
  expect(await program.call('readFile', sandbox.windowsPath('with zero.txt'))).toEqual({
    success: true,
    data: 'before',
  });
  expect(await program.call('writeFile', sandbox.windowsPath('with zero.txt'), 'kept\0lost')).toEqual({
    success: true,
  });
  expect(readFileSync(join(sandbox.documents, 'with zero.txt'), 'latin1')).toBe('kept');
});

test('an empty file is read as a success without data', async ({ open, sandbox }) => {
  const program = await open();
  sandbox.write('empty');
  expect(await program.call('readFile', sandbox.windowsPath('empty'))).toEqual({ success: true });
});

test('files that cannot be read or written give their codes', async ({ open, sandbox }) => {
  const program = await open();
  const notFound = { success: false, error: 'file-not-found' };
  for (const path of [
    sandbox.windowsPath('gone'),
    sandbox.windowsPath('.'),
    '',
    '*.tessary',
    'C:\\<>|',
    'no\\such\\folder',
  ]) {
    expect({ path, ...(await program.call('readFile', path)) }).toEqual({ path, ...notFound });
  }
  const notWritten = { success: false, error: 'file-write-failed' };
  for (const path of [sandbox.windowsPath('no folder\\file'), sandbox.windowsPath('.'), '', '?']) {
    expect({ path, ...(await program.call('writeFile', path, 'x')) }).toEqual({ path, ...notWritten });
  }
});

test('arguments of the wrong kind or number are refused', async ({ open, sandbox }) => {
  const program = await open();
  const refused = { success: false, error: 'invalid-arguments' };
  sandbox.write('kept', 'kept');
  const file = sandbox.windowsPath('kept');
  for (const given of [[], [null], [7], [true], [{}], [[file]]]) {
    expect(await program.call('readFile', ...given)).toEqual(refused);
  }
  for (const given of [[], [file], [file, null], [file, 7], [null, 'text'], [file, {}]]) {
    expect(await program.call('writeFile', ...given)).toEqual(refused);
  }
  expect(readFileSync(join(sandbox.documents, 'kept'), 'utf8')).toBe('kept');
});

test("a path's bytes are read in the system's code page", async ({ open, sandbox }) => {
  const program = await open();
  sandbox.write('übung.json', 'by its real name');
  const path = sandbox.windowsPath('übung.json');
  expect(await program.call('readFile', path)).toEqual({ success: false, error: 'file-not-found' });
  expect(await program.call('writeFile', path, 'by its bytes')).toEqual({ success: true });
  expect(readFileSync(join(sandbox.documents, 'Ã¼bung.json'), 'utf8')).toBe('by its bytes');
  expect(readFileSync(join(sandbox.documents, 'übung.json'), 'utf8')).toBe('by its real name');
  expect(await program.call('readFile', path)).toEqual({ success: true, data: 'by its bytes' });
});

test('a relative path is taken from the folder in which the program was started', async ({ open, sandbox }) => {
  const program = await open();
  expect(await program.call('writeFile', 'here.json', 'text')).toEqual({ success: true });
  expect(existsSync(join(sandbox.documents, 'here.json'))).toBe(true);
});

test('10 MB of text go through the page and come out the same', async ({ open, sandbox }) => {
  test.setTimeout(180_000);
  const program = await open();
  const line = 'The quick brown fox, é À ÿ 漢字 😀 "\\" \t jumps.\r\n';
  const text = line.repeat(Math.ceil(10e6 / Buffer.byteLength(line)));
  sandbox.write('large.txt', text);
  const answers = await program.page.evaluate(
    async (from, to) => {
      type Bound = (...given: string[]) => Promise<{ success: boolean; data?: string }>;
      const { readFile, writeFile } = window as unknown as Record<'readFile' | 'writeFile', Bound>;
      const { success, data = '' } = await readFile(from);
      return { read: success, units: data.length, written: (await writeFile(to, data)).success };
    },
    sandbox.windowsPath('large.txt'),
    sandbox.windowsPath('copy.txt'),
  );
  expect(answers).toEqual({ read: true, units: text.replaceAll('\r\n', '\n').length, written: true });
  expect(readFileSync(join(sandbox.documents, 'copy.txt'), 'utf8') === text).toBe(true);
});
