import { expect, test as base } from '@playwright/test';
import { chmodSync, existsSync, linkSync, mkdirSync, mkdtempSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { Desktop } from '../shared/desktop';
import { LinkRecorder } from '../shared/linkRecorder';
import { type Launch, ProgramProcess } from '../shared/programProcess';
import { Chromium } from './chromium';
import { ChromiumWebView } from './chromiumWebView';
import { FakeWebView2 } from './fakeWebView2';
import { executable } from './paths';
import { WindowsProgram } from './windowsProgram';
import { WinePrefix } from './winePrefix';

/** A folder on drive C with the program and documents in it, thrown away after the test. */
export class WindowsSandbox {
  readonly #prefix: WinePrefix;
  readonly folder: string;
  readonly program: string;
  readonly logFile: string;
  readonly documents: string;

  constructor(prefix: WinePrefix) {
    this.#prefix = prefix;
    this.folder = mkdtempSync(join(prefix.driveC, 'sandbox-'));
    this.program = join(this.folder, 'app', 'tessary.exe');
    this.logFile = join(this.folder, 'app', 'debug.log');
    this.documents = join(this.folder, 'documents');
    for (const folder of [dirname(this.program), this.documents]) mkdirSync(folder);
    linkSync(executable, this.program);
    this.#emptyRescueFolder();
  }

  /** The program's folder in the user's local data, which all tests of a worker share; undefined until it is there. */
  rescueFolder(): string | undefined {
    const users = join(this.#prefix.driveC, 'users');
    return readdirSync(users)
      .map((name) => join(users, name, 'AppData/Local/Tessary'))
      .find((folder) => existsSync(folder));
  }

  #emptyRescueFolder() {
    const folder = this.rescueFolder();
    if (folder) rmSync(folder, { recursive: true, force: true });
  }

  /** Writes a file, making its folder, and gives its path on Linux. */
  write(name: string, content: string | Uint8Array = ''): string {
    const path = join(this.documents, name);
    mkdirSync(dirname(path), { recursive: true });
    writeFileSync(path, content);
    return path;
  }

  /** The path of a document as Windows programs call it. */
  windowsPath(name: string): string {
    return this.#prefix.windowsPath(join(this.documents, name.replaceAll('\\', '/')));
  }

  remove() {
    rmSync(this.folder, { recursive: true, force: true });
    this.#emptyRescueFolder();
  }
}

export type StartOptions = Partial<Pick<Launch, 'cwd' | 'env'>> & {
  /** How Windows starts the program; by its full path unless given. */
  executable?: string;
};

interface Fixtures {
  sandbox: WindowsSandbox;
  /** What a program without a page talks to. */
  runtime: FakeWebView2;
  /** A script on Linux that is the user's browser and mail program. */
  linkRecorder: LinkRecorder;
  /** Starts the program in its window, with these arguments, and ends it with the test. */
  open: (args?: string[], options?: StartOptions) => Promise<WindowsProgram>;
  /** Starts the program without a page, and ends it with the test. */
  run: (args?: string[], options?: StartOptions) => ProgramProcess;
}
interface Internals {
  processes: ProgramProcess[];
  /** What has to end after the processes. */
  atEnd: (() => Promise<void>)[];
  launch: (runtime: FakeWebView2, args: string[], options: StartOptions) => Launch;
}
interface WorkerFixtures {
  desktop: Desktop;
  prefix: WinePrefix;
  chromium: Chromium;
}

export const test = base.extend<Fixtures & Internals, WorkerFixtures>({
  desktop: [
    async ({}, use) => {
      const desktop = await Desktop.start();
      await use(desktop);
      await desktop.stop();
    },
    { scope: 'worker' },
  ],
  prefix: [
    async ({ desktop }, use) => {
      const prefix = WinePrefix.copy(desktop.environment);
      prefix.installRuntime();
      await use(prefix);
      prefix.remove();
    },
    { scope: 'worker', timeout: 120_000 },
  ],
  chromium: [
    async ({}, use) => {
      const chromium = new Chromium();
      await use(chromium);
      await chromium.stop();
    },
    { scope: 'worker' },
  ],
  sandbox: async ({ prefix }, use) => {
    const sandbox = new WindowsSandbox(prefix);
    await use(sandbox);
    sandbox.remove();
  },
  runtime: async ({}, use) => {
    const runtime = await FakeWebView2.listen();
    await use(runtime);
    runtime.stop();
  },
  linkRecorder: async ({ sandbox, prefix }, use) => {
    const recorder = new LinkRecorder(sandbox.folder);
    const script = sandbox.write('../recorder.sh', recorder.script);
    chmodSync(script, 0o755);
    for (const name of ['Browsers', 'Mailers']) prefix.setValue('HKCU\\Software\\Wine\\WineBrowser', name, script);
    await use(recorder);
  },
  atEnd: async ({}, use) => {
    const tasks: (() => Promise<void>)[] = [];
    await use(tasks);
    for (const task of tasks) await task();
  },
  processes: async ({ desktop, sandbox: _sandbox, runtime: _runtime, atEnd: _outliveTheProcesses }, use, testInfo) => {
    const processes: ProgramProcess[] = [];
    await use(processes);
    if (testInfo.status !== testInfo.expectedStatus) {
      writeFileSync(testInfo.outputPath('screen.png'), desktop.screenshot());
    }
    for (const process of processes) await process.end();
  },
  launch: async ({ sandbox, prefix, desktop }, use) => {
    await use(
      (runtime, args, { executable: name = prefix.windowsPath(sandbox.program), cwd = sandbox.documents, env }) => ({
        command: ['wine', name, ...args],
        cwd,
        env: { ...prefix.environment, ...runtime.environment, ...env },
        desktop,
        logFile: sandbox.logFile,
        outputFolder: sandbox.folder,
      }),
    );
  },
  open: async ({ launch, processes, atEnd, prefix, chromium }, use) => {
    await use(async (args = [], options = {}) => {
      const runtime = await FakeWebView2.listen();
      const page = await ChromiumWebView.connect(await chromium.open(), runtime);
      atEnd.push(async () => {
        await page.close();
        runtime.stop();
      });
      const surroundings = { prefix, runtime, page };
      return WindowsProgram.start(launch(runtime, args, options), surroundings, (process) => processes.push(process));
    });
  },
  run: async ({ launch, processes, runtime }, use) => {
    await use((args = [], options = {}) => {
      const process = new ProgramProcess(launch(runtime, args, options));
      processes.push(process);
      return process;
    });
  },
});

export { expect };
