import { copyFileSync, existsSync, mkdirSync, readdirSync, readFileSync, symlinkSync } from 'node:fs';
import { basename, dirname, join } from 'node:path';
import { startStories } from '../stories/start';
import { expect, test } from '../support/linux/fixtures';
import { pageProcess } from '../support/linux/pageProcess';
import { sampleDocument } from '../support/shared/paths';
import { launchArgs } from '../support/shared/runningProgram';

const usage = 'Usage: tessary [--help] [--version] file';

startStories(test, './gone.tessary');

test('the document named on the command line is shown, whatever its name', async ({ open, sandbox }) => {
  const file = join(sandbox.documents, `it's "a" \\ sample.words.tessary`);
  copyFileSync(sampleDocument, file);
  const program = await open([basename(file)]);
  await program.shows('SHA-256 initial hash');
  expect(await program.page.evaluate(() => (window as { tessary?: unknown }).tessary)).toEqual({
    os: { platform: 'windows', arch: 'x64' },
    backend: { implementation: 'cpp', msPackageName: null },
    args: { error: null, filePath: file },
  });
  expect(program.log()).toContain(`\n[Backend] Opening file: ${file}\n`);
});

test('a document whose name is not ASCII is shown', async ({ open, sandbox }) => {
  const file = join(sandbox.documents, 'Übung é À ÿ 漢字 😀.words.tessary');
  copyFileSync(sampleDocument, file);
  const program = await open([file]);
  await program.shows('SHA-256 initial hash');
  expect(await launchArgs(program)).toEqual({ error: null, filePath: file });
});

test('a folder as the document is reported as not found on the start page', async ({ open, sandbox }) => {
  const program = await open([sandbox.documents]);
  await program.shows('Failed to read file: file-not-found');
  expect(await launchArgs(program)).toEqual({ error: null, filePath: sandbox.documents });
});

test('a document whose name has no way through the web view is reported', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('delete \u007f.words.tessary', '{}')]);
  await program.shows('Failed to read file: The file name holds the control character U+007F: choose another name');
});

test('an empty document is reported on the start page', async ({ open, sandbox }) => {
  const program = await open([sandbox.write('empty.words.tessary')]);
  await program.shows('Failed to read file: Unknown error');
});

test('the page needs no OpenGL where no graphics processor draws', async ({ open }) => {
  const program = await open([sampleDocument]);
  await program.shows('SHA-256 initial hash');
  const threads = `/proc/${pageProcess(program)}/task`;
  const names = readdirSync(threads).map((id) => readFileSync(join(threads, id, 'comm'), 'utf8'));
  const devices = existsSync('/dev/dri') ? readdirSync('/dev/dri') : [];
  expect(names.some((name) => name.includes('Compositor'))).toBe(devices.some((name) => name.startsWith('renderD')));
});

test('the window has its title, size and icon', async ({ open }) => {
  const program = await open();
  expect(program.window.title).toBe('Tessary');
  const geometry = program.desktop.describe('xwininfo', program.window);
  expect(geometry).toMatch(/Width: 800\n.*Height: 600\n/);
  const icon = program.desktop.describe('xprop', program.window, '_NET_WM_ICON');
  const sizes = [...icon.matchAll(/Icon \((\d+) x \d+\)/g)].map(([, size]) => Number(size));
  expect(sizes).toEqual(expect.arrayContaining([16, 32, 48, 64, 128]));
  expect(program.desktop.describe('xprop', program.window, 'WM_NORMAL_HINTS')).not.toContain('maximum size');
});

test('closing the window ends the program with code 0, frees its port and leaves a complete log', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const port = new URL(program.url).port;
  expect(await program.close()).toBe(0);
  await expect(fetch(program.url)).rejects.toThrow('fetch failed');
  expect(program.log().split('\n').slice(0, 5)).toEqual([
    '[Server] Release mode: serving embedded static files',
    `[Server] Bound to port ${port}`,
    'Application: tessary v1.5.4',
    expect.stringMatching(/^Executable path: \/.*\/app\/tessary$/),
    `Server URL: http://localhost:${port}`,
  ]);
});

test('a second run continues the log of the first', async ({ open }) => {
  const first = await open();
  await first.shows('Open Words Tool');
  await first.close();
  const before = first.log();
  const second = await open();
  expect(second.log().startsWith(before)).toBe(true);
  expect(second.log().slice(before.length)).toMatch(/^\[Server\] Release mode[^]*\nServer URL: /);
});

test('started through a link or a relative path, the log lies beside the executable', async ({ open, sandbox }) => {
  const link = join(sandbox.folder, 'shortcut');
  symlinkSync(sandbox.program, link);
  const byLink = await open([], { command: [link] });
  expect(byLink.log()).toContain(`Executable path: ${sandbox.program}\n`);
  await byLink.close();
  const byRelativePath = await open([], { command: ['../app/tessary'] });
  expect(byRelativePath.log().match(new RegExp(`Executable path: ${sandbox.program}\n`, 'g'))).toHaveLength(2);
  expect(existsSync(join(sandbox.folder, 'debug.log'))).toBe(false);
});

test('the program runs without a log where none can be written', async ({ open, sandbox }) => {
  mkdirSync(sandbox.logFile);
  const program = await open();
  await program.shows('Open Words Tool');
  expect(await program.close()).toBe(0);
  expect(program.process.stdout).toBe('');
});

test('help and version are printed, without a window or a log', async ({ run, sandbox }) => {
  for (const option of ['--help', '-h']) {
    const help = run([option]);
    expect(await help.exit()).toBe(0);
    expect(help.stdout).toContain(usage);
    expect(help.stdout).toContain('Path to file to open');
  }
  for (const option of ['--version', '-v']) {
    const version = run([option]);
    expect(await version.exit()).toBe(0);
    expect(version.stdout).toBe('1.5.4\n');
  }
  expect(existsSync(sandbox.logFile)).toBe(false);
});

test('without a display one sentence says what is missing', async ({ run, sandbox }) => {
  const program = run([], { env: { DISPLAY: undefined } });
  expect(await program.exit()).toBe(1);
  expect(program.stderr).toBe(
    'Tessary needs a display to open its window: start it in a desktop session, or under Xvfb.\n',
  );
  expect(readFileSync(join(dirname(sandbox.program), 'debug.log'), 'utf8')).toContain('\nServer URL: ');
});
