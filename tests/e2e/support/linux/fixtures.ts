import { expect, test as base } from '@playwright/test';
import { copyFileSync, linkSync, mkdirSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { Desktop } from '../shared/desktop';
import { LinkRecorder } from '../shared/linkRecorder';
import { type Launch, ProgramProcess } from '../shared/programProcess';
import { executable, suppressions } from './paths';
import { Program } from './program';

/** For a build with sanitizers. The quick way to unwind stops at libraries without frame pointers, whoever called them. */
const sanitizerOptions = {
  ASAN_OPTIONS: 'fast_unwind_on_malloc=0:malloc_context_size=10:verify_asan_link_order=0',
  LSAN_OPTIONS: `suppressions=${suppressions}/lsan.supp:print_suppressions=0`,
  // GLib orders its threads' accesses by futexes, which the sanitizer cannot see: it would report them as races.
  TSAN_OPTIONS: `ignore_noninstrumented_modules=1:suppressions=${suppressions}/tsan.supp`,
  UBSAN_OPTIONS: 'print_stacktrace=1',
};

/** A user's home with the program in it, thrown away after the test. */
export class ProgramSandbox {
  readonly folder = mkdtempSync(join(tmpdir(), 'tessary-'));
  readonly program = join(this.folder, 'app', 'tessary');
  readonly logFile = join(this.folder, 'app', 'debug.log');
  readonly documents = join(this.folder, 'documents');
  readonly home = join(this.folder, 'home');

  constructor() {
    for (const folder of [dirname(this.program), this.documents, join(this.home, 'runtime')]) {
      mkdirSync(folder, { recursive: true, mode: 0o700 });
    }
    try {
      linkSync(executable, this.program);
    } catch {
      copyFileSync(executable, this.program); // on another file system
    }
  }

  /** Writes a file, making its folder, and gives its path. Relative names are taken from the documents' folder. */
  write(name: string, content: string | Uint8Array = ''): string {
    const path = join(this.documents, name);
    mkdirSync(dirname(path), { recursive: true });
    writeFileSync(path, content);
    return path;
  }

  /** The environment of a fresh user on this desktop. */
  environment(desktop: Desktop): Record<string, string | undefined> {
    return {
      ...desktop.environment,
      ...sanitizerOptions,
      GSETTINGS_BACKEND: 'memory',
      GTK_IM_MODULE: 'gtk-im-context-simple',
      HOME: this.home,
      XDG_CACHE_HOME: join(this.home, 'cache'),
      XDG_CONFIG_HOME: join(this.home, 'config'),
      XDG_DATA_HOME: join(this.home, 'data'),
      XDG_RUNTIME_DIR: join(this.home, 'runtime'),
    };
  }

  remove() {
    rmSync(this.folder, { recursive: true, force: true });
  }
}

export type StartOptions = Partial<Pick<Launch, 'command' | 'cwd' | 'env'>>;

interface Fixtures {
  sandbox: ProgramSandbox;
  /** The desktop's handler of links and folders. */
  linkRecorder: LinkRecorder;
  /** Starts the program in its window, with these arguments, and ends it with the test. */
  open: (args?: string[], options?: StartOptions) => Promise<Program>;
  /** Starts the program where no window is expected, and ends it with the test. */
  run: (args?: string[], options?: StartOptions) => ProgramProcess;
}

export const test = base.extend<Fixtures & { processes: ProgramProcess[] }, { desktop: Desktop }>({
  desktop: [
    async ({}, use) => {
      const desktop = await Desktop.start();
      await use(desktop);
      await desktop.stop();
    },
    { scope: 'worker' },
  ],
  sandbox: async ({}, use) => {
    const sandbox = new ProgramSandbox();
    await use(sandbox);
    sandbox.remove();
  },
  linkRecorder: async ({ sandbox }, use) => {
    const recorder = new LinkRecorder(sandbox.folder);
    const script = sandbox.write('../home/recorder.sh', recorder.script);
    const schemes = ['http', 'https', 'mailto'].map((scheme) => `x-scheme-handler/${scheme}`);
    const types = [...schemes, 'inode/directory'];
    sandbox.write(
      '../home/data/applications/recorder.desktop',
      `[Desktop Entry]\nType=Application\nName=Recorder\nExec=/bin/sh ${script} %u\nMimeType=${types.join(';')};\n`,
    );
    sandbox.write(
      '../home/config/mimeapps.list',
      `[Default Applications]\n${types.map((type) => `${type}=recorder.desktop\n`).join('')}`,
    );
    await use(recorder);
  },
  processes: async ({ desktop, sandbox: _outlivesTheProcesses }, use, testInfo) => {
    const processes: ProgramProcess[] = [];
    await use(processes);
    if (testInfo.status !== testInfo.expectedStatus) {
      writeFileSync(testInfo.outputPath('screen.png'), desktop.screenshot());
    }
    for (const process of processes) await process.end();
    for (const process of processes) expect(process.stderr).not.toMatch(/Sanitizer|runtime error:/);
  },
  open: async ({ desktop, sandbox, processes }, use) => {
    await use((args = [], options) =>
      Program.start(launchOf(sandbox, desktop, args, options), (process) => processes.push(process)),
    );
  },
  run: async ({ desktop, sandbox, processes }, use) => {
    await use((args = [], options) => {
      const process = new ProgramProcess(launchOf(sandbox, desktop, args, options));
      processes.push(process);
      return process;
    });
  },
});

function launchOf(sandbox: ProgramSandbox, desktop: Desktop, args: string[], options: StartOptions = {}): Launch {
  return {
    command: [...(options.command ?? [sandbox.program]), ...args],
    cwd: options.cwd ?? sandbox.documents,
    env: { ...sandbox.environment(desktop), ...options.env },
    logFile: sandbox.logFile,
    outputFolder: sandbox.folder,
    desktop,
  };
}

export { expect };
