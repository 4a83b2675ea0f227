import { spawn, type ChildProcess } from 'node:child_process';
import { closeSync, existsSync, mkdtempSync, openSync, readFileSync } from 'node:fs';
import { createServer, type AddressInfo } from 'node:net';
import { join } from 'node:path';
import type { Desktop, DesktopWindow } from './desktop';
import { Inspector } from './inspector';
import { until } from './until';

/** What the bound functions answer. */
export interface Envelope {
  success: boolean;
  data?: string;
  path?: string;
  error?: string;
}

export interface Launch {
  /** The command and its arguments. */
  command: string[];
  cwd: string;
  env: Record<string, string | undefined>;
  desktop: Desktop;
  /** Where the program is expected to write its log. */
  logFile: string;
  /** Where what it prints is kept. */
  outputFolder: string;
}

/** A process of the program, with or without a window. */
export class ProgramProcess {
  readonly #process: ChildProcess;
  readonly #exit: Promise<number | string>;
  readonly #output: string;

  /** Its output goes to files: it must never have to wait until a test reads it. */
  constructor(
    { command: [name = '', ...args], cwd, env, outputFolder }: Launch,
    extraEnv: Record<string, string> = {},
  ) {
    this.#output = mkdtempSync(join(outputFolder, 'output-'));
    const streams = ['stdout', 'stderr'].map((stream) => openSync(join(this.#output, stream), 'w'));
    this.#process = spawn(name, args, {
      cwd,
      env: { ...env, ...extraEnv },
      stdio: ['ignore', ...streams],
      detached: true, // a process group of its own, so that the engine's processes can be ended with it
    });
    for (const stream of streams) closeSync(stream);
    this.#exit = new Promise((resolve, reject) => {
      this.#process.once('error', reject);
      this.#process.once('exit', (code, signal) => resolve(code ?? signal ?? ''));
    });
  }

  get stdout(): string {
    return readFileSync(join(this.#output, 'stdout'), 'utf8');
  }

  get stderr(): string {
    return readFileSync(join(this.#output, 'stderr'), 'utf8');
  }

  get pid(): number {
    return this.#process.pid ?? -1;
  }

  get running(): boolean {
    return this.#process.exitCode === null && this.#process.signalCode === null;
  }

  /** The exit code, or the name of the signal that ended the process. */
  exit(): Promise<number | string> {
    return this.#exit;
  }

  /** Ends the process and those that it started, whatever state they are in. */
  async end() {
    try {
      process.kill(-this.pid, 'SIGKILL');
    } catch {
      // The whole group has ended by itself.
    }
    await this.#exit;
  }
}

/** The program with its window open and its page loaded. */
export class Program {
  readonly process: ProgramProcess;
  readonly desktop: Desktop;
  readonly page: Inspector;
  readonly window: DesktopWindow;
  readonly url: string;
  readonly #logFile: string;

  private constructor(launch: Launch, process: ProgramProcess, page: Inspector, window: DesktopWindow, url: string) {
    this.process = process;
    this.desktop = launch.desktop;
    this.page = page;
    this.window = window;
    this.url = url;
    this.#logFile = launch.logFile;
  }

  /** `started` hears of the process before anything can go wrong with it. */
  static async start(launch: Launch, started: (process: ProgramProcess) => void): Promise<Program> {
    const port = await freePort();
    const process = new ProgramProcess(launch, { WEBKIT_INSPECTOR_HTTP_SERVER: `127.0.0.1:${port}` });
    started(process);
    try {
      const page = await Inspector.connect(port, () => process.running);
      const url = await until('the page', () => loadedPage(page));
      const window = await until('the window', () => launch.desktop.windowsOf(process.pid)[0]);
      return new Program(launch, process, page, window, url);
    } catch (error) {
      throw new Error(`${(error as Error).message}\nstderr: ${process.stderr}`);
    }
  }

  /** All that the log holds by now, earlier runs included. */
  log(): string {
    return existsSync(this.#logFile) ? readFileSync(this.#logFile, 'utf8') : '';
  }

  /** All windows of the program that can be seen now. */
  windows(): DesktopWindow[] {
    return this.desktop.windowsOf(this.process.pid);
  }

  /** Calls a bound function as the page does. Arguments travel as JSON. */
  call<Answer = Envelope>(name: string, ...given: unknown[]): Promise<Answer> {
    return this.page.evaluate(
      (boundName, values) =>
        (window as unknown as Record<string, (...all: unknown[]) => Promise<Answer>>)[boundName]!(...values),
      name,
      given,
    );
  }

  /** The text that the user can read in the window. */
  text(): Promise<string> {
    return this.page.evaluate(() => document.body.innerText);
  }

  async shows(text: string) {
    await until(`"${text}" in the window`, async () => (await this.text()).includes(text));
  }

  /** Closes the window with its close button and gives the exit code. */
  async close(): Promise<number | string> {
    this.page.disconnect();
    this.desktop.close(this.window);
    return this.process.exit();
  }
}

/** The page's origin as soon as it is loaded. What is asked of the empty page before it can get lost on the way. */
function loadedPage(page: Inspector): Promise<string | false> {
  const look = () => document.readyState === 'complete' && location.origin.startsWith('http') && location.origin;
  return page.evaluate(look).catch(() => false);
}

/** A port of the loopback interface that nobody uses now. */
export async function freePort(): Promise<number> {
  const server = createServer();
  await new Promise<void>((resolve) => server.listen(0, '127.0.0.1', resolve));
  const { port } = server.address() as AddressInfo;
  await new Promise((resolve) => server.close(resolve));
  return port;
}

/** What the page was told of the command line. */
export function launchArgs(program: Program): Promise<unknown> {
  return program.page.evaluate(() => (window as { tessary?: { args?: unknown } }).tessary?.args);
}
