import { execFileSync } from 'node:child_process';
import {
  copyFileSync,
  existsSync,
  linkSync,
  mkdirSync,
  mkdtempSync,
  readdirSync,
  renameSync,
  rmSync,
  unlinkSync,
} from 'node:fs';
import { join } from 'node:path';
import { fakeWebView2Dll, wineFolder } from './paths';

const template = join(wineFolder, 'template');
const runtimeKey = 'SOFTWARE\\Microsoft\\EdgeUpdate\\ClientState\\{F3017226-FE2A-4295-8BDF-00C3A9A7E4C5}';

/** A Windows of its own, as wine makes it: drive C, registry and running programs. */
export class WinePrefix {
  readonly folder: string;
  readonly environment: Record<string, string | undefined>;

  private constructor(folder: string, session: Record<string, string | undefined>) {
    this.folder = folder;
    this.environment = {
      ...session,
      HOME: join(folder, 'home'),
      WINEPREFIX: folder,
      WINEDEBUG: '-all',
      WINEDLLOVERRIDES: 'mscoree,mshtml=;winemenubuilder.exe=d',
    };
  }

  /** Makes the prefix that the others are copies of, unless it is there. */
  static makeTemplate() {
    if (existsSync(template)) return;
    mkdirSync(wineFolder, { recursive: true });
    const prefix = new WinePrefix(mkdtempSync(join(wineFolder, 'new-')), { PATH: process.env.PATH, LANG: 'C.UTF-8' });
    mkdirSync(join(prefix.folder, 'home'));
    prefix.#run('wine', 'wineboot', '--init');
    // A crash ends the program at once, and windows do without the window manager that is not there.
    prefix.setValue('HKCU\\Software\\Wine\\WineDbg', 'ShowCrashDialog', '0', 'REG_DWORD');
    prefix.setValue('HKCU\\Software\\Wine\\X11 Driver', 'Managed', 'N');
    prefix.#run('wineserver', '--wait');
    prefix.#keepUserFoldersInside();
    try {
      renameSync(prefix.folder, template);
    } catch (error) {
      prefix.remove();
      if (!existsSync(template)) throw error; // otherwise others made theirs in the meantime
    }
  }

  /** A fresh copy for the desktop session with this environment, without a browser runtime. Wine's own programs in it are shared with the template. */
  static copy(session: Record<string, string | undefined>): WinePrefix {
    const prefix = new WinePrefix(mkdtempSync(join(wineFolder, 'copy-')), session);
    execFileSync('cp', ['-al', `${template}/.`, prefix.folder]);
    for (const name of readdirSync(template).filter((each) => each.endsWith('.reg'))) {
      rmSync(join(prefix.folder, name));
      copyFileSync(join(template, name), join(prefix.folder, name));
    }
    return prefix;
  }

  get driveC(): string {
    return join(this.folder, 'drive_c');
  }

  /** How Windows programs call a file on drive C. */
  windowsPath(path: string): string {
    return `C:${path.slice(this.driveC.length).replaceAll('/', '\\')}`;
  }

  /** Puts the fake runtime where a program looks for the browser runtime. */
  installRuntime(version = '120.0.2210.91', root: 'HKLM' | 'HKCU' = 'HKLM') {
    const folder = join(this.driveC, 'runtime', version, 'EBWebView', 'x64');
    mkdirSync(folder, { recursive: true });
    linkSync(fakeWebView2Dll, join(folder, 'EmbeddedBrowserWebView.dll'));
    this.registerRuntime(version, root);
  }

  /** Says in the registry that a runtime is there, whether that is so or not. */
  registerRuntime(version: string, root: 'HKLM' | 'HKCU') {
    // Installers of the runtime are 32-bit programs.
    const view = root === 'HKLM' ? ['/reg:32'] : [];
    const value = ['/v', 'EBWebView', '/d', `C:\\runtime\\${version}`];
    this.#run('wine', 'reg', 'add', `${root}\\${runtimeKey}`, ...value, '/f', ...view);
  }

  /** Takes both away again, as far as they are there. */
  removeRuntime() {
    rmSync(join(this.driveC, 'runtime'), { recursive: true, force: true });
    for (const [root, ...view] of [['HKLM', '/reg:32'], ['HKCU']]) {
      try {
        this.#run('wine', 'reg', 'delete', `${root}\\${runtimeKey}`, '/f', ...view);
      } catch {
        continue; // there was none
      }
    }
  }

  setValue(key: string, name: string, data: string, type = 'REG_SZ') {
    const value = name === '' ? ['/ve'] : ['/v', name];
    this.#run('wine', 'reg', 'add', key, ...value, '/t', type, '/d', data, '/f');
  }

  deleteKey(key: string) {
    this.#run('wine', 'reg', 'delete', key, '/f');
  }

  /** Runs a Windows program and gives what it prints. */
  output(program: string, ...args: string[]): string {
    return this.#run('wine', program, ...args);
  }

  /** Ends all programs of this prefix, and throws it away. */
  remove() {
    try {
      this.#run('wineserver', '--kill');
    } catch {
      // Nothing was running any more.
    }
    rmSync(this.folder, { recursive: true, force: true, maxRetries: 5 });
  }

  /** Wine links "Documents" and the like to the home folder on Linux. */
  #keepUserFoldersInside() {
    const users = join(this.driveC, 'users');
    for (const entry of readdirSync(users, { recursive: true, withFileTypes: true })) {
      if (!entry.isSymbolicLink()) continue;
      const folder = join(entry.parentPath, entry.name);
      unlinkSync(folder);
      mkdirSync(folder);
    }
  }

  #run(command: string, ...args: string[]): string {
    return execFileSync(command, args, {
      env: this.environment,
      encoding: 'utf8',
      stdio: ['ignore', 'pipe', 'ignore'],
      timeout: 120_000,
    });
  }
}
