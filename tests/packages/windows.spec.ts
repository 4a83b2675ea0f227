import { copyFileSync, existsSync, mkdirSync, readdirSync, readFileSync, statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { sampleDocument } from '../e2e/support/shared/paths';
import { ProgramProcess } from '../e2e/support/shared/programProcess';
import { until } from '../e2e/support/shared/until';
import { ChromiumWebView } from '../e2e/support/windows/chromiumWebView';
import { FakeWebView2 } from '../e2e/support/windows/fakeWebView2';
import { expect, test as base } from '../e2e/support/windows/fixtures';
import type { WinePrefix } from '../e2e/support/windows/winePrefix';
import { filesIn, run, version, windowsInstaller, windowsZip, withoutLicence } from './packages';

const classes = 'Software\\Classes';

/** What the installer put on drive C of one prefix. */
class Installation {
  readonly #prefix: WinePrefix;
  readonly folder: string;
  readonly shortcut: string;
  readonly data: string;

  constructor(prefix: WinePrefix) {
    this.#prefix = prefix;
    this.folder = this.#folderNamed('LOCALAPPDATA', 'Programs', 'Tessary');
    this.shortcut = this.#folderNamed('APPDATA', 'Microsoft', 'Windows', 'Start Menu', 'Programs', 'Tessary.lnk');
    this.data = this.#folderNamed('APPDATA', 'tessary.exe');
  }

  /** Runs the installer without its window. */
  install() {
    const copy = join(this.#prefix.driveC, 'setup.exe');
    if (!existsSync(copy)) copyFileSync(windowsInstaller, copy);
    this.#prefix.output('C:\\setup.exe', '/S');
  }

  /** Runs the uninstaller, which goes on in the background, until its own file is gone. */
  async uninstall() {
    this.#prefix.output(this.#prefix.windowsPath(join(this.folder, 'uninstall.exe')), '/S');
    await until('the end of the uninstaller', () => !existsSync(this.folder));
  }

  /** All that the user's part of the registry holds about the program. */
  registered(): string[] {
    const printed = this.#prefix.output('reg', 'query', 'HKCU\\Software', '/s');
    return printed.split(/\r?\n/).filter((line) => /tessary/i.test(line));
  }

  /** Wine 8 looks for file types in the machine's part of the registry only; Windows looks in the user's as well. */
  showFileTypesToWine() {
    for (const key of ['.tessary', 'Tessary.Words']) {
      this.#prefix.output('reg', 'copy', `HKCU\\${classes}\\${key}`, `HKLM\\${classes}\\${key}`, '/s', '/f');
    }
  }

  /** The files of all users, but for those that programs leave in the folder for temporary ones. */
  userFiles(): string[] {
    const users = join(this.#prefix.driveC, 'users');
    const names = readdirSync(users, { recursive: true, encoding: 'utf8' });
    return names.filter((name) => !name.includes('/Temp/') && statSync(join(users, name)).isFile()).sort();
  }

  #folderNamed(variable: string, ...below: string[]): string {
    const path = this.#prefix.output('cmd', '/c', `echo %${variable}%`).trim();
    return join(this.#prefix.driveC, ...path.slice('C:\\'.length).split('\\'), ...below);
  }
}

/** The installed program, with its page in a browser. It may have been started by others. */
interface Opened {
  shows: (text: string) => Promise<void>;
  /** Closes the window, and gives the exit code of what was started. */
  close: () => Promise<number | string>;
}

interface Fixtures {
  installation: Installation;
  /** Has Windows run a command that starts the program sooner or later. */
  start: (...command: string[]) => Promise<Opened>;
}

const test = base.extend<Fixtures>({
  installation: async ({ prefix }, use) => {
    const installation = new Installation(prefix);
    installation.install();
    await use(installation);
    if (existsSync(installation.folder)) await installation.uninstall();
  },
  start: async ({ installation, prefix, sandbox, desktop, chromium, processes, atEnd }, use) => {
    await use(async (...command) => {
      const runtime = await FakeWebView2.listen();
      const page = await ChromiumWebView.connect(await chromium.open(), runtime);
      atEnd.push(async () => {
        await page.close();
        runtime.stop();
      });
      const started = new ProgramProcess({
        command: ['wine', ...command],
        cwd: sandbox.documents,
        env: { ...prefix.environment, ...runtime.environment },
        desktop,
        logFile: join(installation.folder, 'debug.log'),
        outputFolder: sandbox.folder,
      });
      processes.push(started);
      const text = () => page.evaluate(() => (document.body as HTMLElement | null)?.innerText ?? '').catch(() => '');
      return {
        shows: async (wanted) => {
          await until(`"${wanted}" in the window`, async () => (await text()).includes(wanted));
        },
        close: () => {
          runtime.closeWindow();
          return started.exit();
        },
      };
    });
  },
});

test('the zip holds the program and the licences of every library in it', () => {
  const folder = `tessary-${version}`;
  expect(filesIn(windowsZip)).toEqual([`${folder}/LICENCES.txt`, `${folder}/tessary.exe`]);
  const licences = run('unzip', '-p', windowsZip, `${folder}/LICENCES.txt`);
  expect(withoutLicence('windows', licences)).toEqual([]);
  for (const text of ['SIL OPEN FONT LICENSE', 'mingw-w64-common', 'gcc-mingw-w64-base'])
    expect(licences).toContain(text);
});

test('unpacked from the zip, the program opens a document and keeps its log beside itself', async ({
  sandbox,
  prefix,
  open,
}) => {
  run('unzip', '-q', windowsZip, '-d', sandbox.documents);
  const folder = join(sandbox.documents, `tessary-${version}`);
  copyFileSync(sampleDocument, join(sandbox.documents, 'mine.words.tessary'));
  const program = await open(['mine.words.tessary'], { executable: prefix.windowsPath(join(folder, 'tessary.exe')) });
  await program.shows('SHA-256 initial hash');
  expect(await program.close()).toBe(0);
  expect(readFileSync(join(folder, 'debug.log'), 'utf8')).toContain(`Application: tessary v${version}\r\n`);
});

test('the installer puts the program into a folder of the user, and an entry into the start menu', ({
  installation,
  prefix,
}) => {
  expect(installation.folder).toMatch(/\/AppData\/Local\/Programs\/Tessary$/);
  expect(readdirSync(installation.folder).sort()).toEqual(['LICENCES.txt', 'tessary.exe', 'uninstall.exe']);
  const shortcut = readFileSync(installation.shortcut);
  const target = prefix.windowsPath(join(installation.folder, 'tessary.exe'));
  expect(shortcut.includes(Buffer.from(target, 'utf16le')) || shortcut.includes(Buffer.from(target, 'latin1'))).toBe(
    true,
  );
  const registered = installation.registered().join('\n');
  for (const text of [`"${target}" "%1"`, `${target},0`, 'Tessary.Words', '\\uninstall.exe" /S']) {
    expect(registered).toContain(text);
  }
});

test('a document that is opened by its type is shown by the installed program, which keeps a log', async ({
  installation,
  sandbox,
  start,
}) => {
  installation.showFileTypesToWine();
  for (const name of ['a document.words.tessary', 'short.tessary']) {
    copyFileSync(sampleDocument, join(sandbox.documents, name));
    const program = await start('start', '/wait', sandbox.windowsPath(name));
    await program.shows('SHA-256 initial hash');
    const log = readFileSync(join(installation.folder, 'debug.log'), 'utf8');
    expect(log).toContain(`\n[Backend] Opening file: ${sandbox.windowsPath(name)}\r\n`);
    expect(await program.close()).toBe(0);
  }
});

test('the uninstaller leaves nothing behind, and the program can be installed again', async ({ prefix, sandbox }) => {
  const installation = new Installation(prefix);
  const before = installation.userFiles();
  installation.install();
  writeFileSync(join(installation.folder, 'debug.log'), 'a log');
  mkdirSync(installation.data);
  writeFileSync(join(installation.data, 'cache'), "the browser runtime's");
  sandbox.write('mine.words.tessary');
  await installation.uninstall();
  expect(installation.userFiles()).toEqual(before);
  expect(installation.registered()).toEqual([]);

  installation.install();
  expect(existsSync(join(installation.folder, 'tessary.exe'))).toBe(true);
  expect(installation.registered()).not.toEqual([]);
  await installation.uninstall();
});

test('a file type that was given to another program meanwhile stays with it', async ({ installation, prefix }) => {
  prefix.setValue(`HKCU\\${classes}\\.tessary`, '', 'Another.Document');
  await installation.uninstall();
  expect(prefix.output('reg', 'query', `HKCU\\${classes}\\.tessary`, '/ve')).toContain('Another.Document');
  prefix.deleteKey(`HKCU\\${classes}\\.tessary`);
});

test('while the program is running it is neither replaced nor removed', async ({ installation, prefix, start }) => {
  const installed = join(installation.folder, 'tessary.exe');
  const program = await start(prefix.windowsPath(installed));
  await program.shows('Open Words Tool');
  expect(() => installation.install()).toThrow(expect.objectContaining({ status: 2 }));
  expect(existsSync(installed)).toBe(true);
  expect(installation.registered()).not.toEqual([]);
  expect(await program.close()).toBe(0);
  installation.install();
});
