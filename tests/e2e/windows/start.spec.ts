import { copyFileSync, existsSync, mkdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { startStories } from '../stories/start';
import { sampleDocument } from '../support/shared/paths';
import { launchArgs } from '../support/shared/runningProgram';
import { expect, test } from '../support/windows/fixtures';

startStories(test, '.\\gone.tessary');

test('the document named on the command line is shown', async ({ open, sandbox }) => {
  copyFileSync(sampleDocument, join(sandbox.documents, "it's a sample.words.tessary"));
  const program = await open(["it's a sample.words.tessary"]);
  await program.shows('SHA-256 initial hash');
  const filePath = sandbox.windowsPath("it's a sample.words.tessary");
  expect(await program.page.evaluate(() => (window as { tessary?: unknown }).tessary)).toEqual({
    os: { platform: 'windows', arch: 'x64' },
    backend: { implementation: 'cpp', msPackageName: null },
    args: { error: null, filePath },
  });
  expect(program.log()).toContain(`\n[Backend] Opening file: ${filePath}\n`);
});

test('a name with wildcards is taken as it is typed', async ({ open, sandbox }) => {
  sandbox.write('one.tessary');
  sandbox.write('two.tessary');
  const program = await open(['*.tessary']);
  await program.shows('Failed to start Tessary: File not found: *.tessary');
});

test('a folder as the document is reported as not found on the start page', async ({ open, sandbox }) => {
  const program = await open(['.']);
  await program.shows('Failed to read file: file-not-found');
  expect(await launchArgs(program)).toEqual({ error: null, filePath: sandbox.windowsPath('.') });
});

test('an empty document is reported on the start page', async ({ open, sandbox }) => {
  sandbox.write('empty.words.tessary');
  const program = await open(['empty.words.tessary']);
  await program.shows('Failed to read file: Unknown error');
});

test("a document whose name is in the system's code page is found, but altered on its way to the page", async ({
  open,
  sandbox,
}) => {
  copyFileSync(sampleDocument, join(sandbox.documents, 'übung.words.tessary'));
  const program = await open(['übung.words.tessary']);
  await program.shows('Failed to read file: file-not-found');
  expect(await launchArgs(program)).toEqual({
    error: null,
    filePath: sandbox.windowsPath('\ufffdbung.words.tessary'),
  });
  expect(readFileSync(sandbox.logFile, 'latin1')).toContain('\\documents\\übung.words.tessary\r\n');
});

test("a document whose name is outside the system's code page is reported as not found", async ({ open, sandbox }) => {
  copyFileSync(sampleDocument, join(sandbox.documents, '漢字.words.tessary'));
  const program = await open(['漢字.words.tessary']);
  await program.shows('Failed to start Tessary: File not found: ??.words.tessary');
});

test('the window has its title, size and icon', async ({ open }) => {
  const program = await open();
  expect(program.window.title).toBe('Tessary');
  expect(program.runtime.texts('bounds').at(-1)).toBe('800 600');
  const icon = program.desktop.describe('xprop', program.window, '_NET_WM_ICON');
  for (const size of [16, 32]) expect(icon).toContain(`Icon (${size} x ${size}):`);
  // Wine reports the frame to X as well.
  const [width, height] = ['Width', 'Height'].map((side) =>
    Number(new RegExp(`${side}: (\\d+)`).exec(program.desktop.describe('xwininfo', program.window))?.[1]),
  );
  expect(width).toBeGreaterThan(800);
  expect(height).toBeGreaterThan(600);
});

test('closing the window ends the program with code 0, frees its port and leaves a complete log', async ({
  open,
  prefix,
  sandbox,
}) => {
  const program = await open();
  await program.shows('Open Words Tool');
  const port = new URL(program.url).port;
  expect(await program.close()).toBe(0);
  await expect(fetch(program.url)).rejects.toThrow('fetch failed');
  expect(readFileSync(sandbox.logFile, 'utf8').split('\r\n').slice(0, 5)).toEqual([
    '[Server] Release mode: serving embedded static files',
    `[Server] Bound to port ${port}`,
    'Application: tessary v1.5.4',
    `Executable path: ${prefix.windowsPath(sandbox.program)}`,
    `Server URL: http://localhost:${port}`,
  ]);
});

test('Alt+F4 closes the window', async ({ open, desktop }) => {
  const program = await open();
  desktop.focus(program.window);
  desktop.press('alt+F4');
  expect(await program.process.exit()).toBe(0);
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

test('started by a relative path, the log lies beside the executable', async ({ open, sandbox, prefix }) => {
  const program = await open([], { executable: '..\\app\\tessary.exe' });
  expect(program.log()).toContain(`Executable path: ${prefix.windowsPath(sandbox.program)}\n`);
  expect(existsSync(join(sandbox.documents, 'debug.log'))).toBe(false);
});

test("a folder whose name is in the system's code page may hold the program", async ({ open, sandbox, prefix }) => {
  const program = join(sandbox.documents, 'übung', 'tessary.exe');
  sandbox.write('übung/debug.log');
  copyFileSync(sandbox.program, program);
  const opened = await open([], { executable: prefix.windowsPath(program) });
  expect(readFileSync(join(sandbox.documents, 'übung', 'debug.log'), 'utf8')).toContain(
    `Executable path: ${prefix.windowsPath(program)}\r\n`,
  );
  expect(await opened.close()).toBe(0);
});

test('the program runs without a log where none can be written', async ({ open, sandbox }) => {
  mkdirSync(sandbox.logFile);
  const program = await open();
  await program.shows('Open Words Tool');
  expect(await program.close()).toBe(0);
});

test('help and version are printed, without a window or a log', async ({ run, sandbox }) => {
  for (const option of ['--help', '-h']) {
    const help = run([option]);
    expect(await help.exit()).toBe(0);
    expect(help.stdout).toContain('Usage: tessary [--help] [--version] file');
    expect(help.stdout).toContain('Path to file to open');
  }
  for (const option of ['--version', '-v']) {
    const version = run([option]);
    expect(await version.exit()).toBe(0);
    expect(version.stdout.trim()).toBe('1.5.4');
  }
  expect(existsSync(sandbox.logFile)).toBe(false);
});
