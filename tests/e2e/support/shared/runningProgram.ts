import { existsSync, readFileSync } from 'node:fs';
import type { Desktop, DesktopWindow } from './desktop';
import type { Launch, ProgramProcess } from './programProcess';
import { until } from './until';

/** What the bound functions answer. */
export interface Envelope {
  success: boolean;
  data?: string;
  path?: string;
  error?: string;
}

/** A page in which functions can be run, whatever engine shows it. */
export interface ScriptablePage {
  /**
   * Runs a function in the page and waits for what it gives, also when that is a promise.
   * The function knows nothing of its surroundings here: all it needs comes as arguments, which travel as JSON.
   */
  evaluate<Arguments extends unknown[], Result>(
    work: (...given: Arguments) => Result | Promise<Result>,
    ...given: Arguments
  ): Promise<Result>;
}

/** The program with its window open and its page loaded, on any system. */
export abstract class RunningProgram<Page extends ScriptablePage = ScriptablePage> {
  readonly process: ProgramProcess;
  readonly desktop: Desktop;
  readonly page: Page;
  readonly window: DesktopWindow;
  readonly url: string;
  readonly #logFile: string;

  protected constructor(launch: Launch, process: ProgramProcess, page: Page, window: DesktopWindow, url: string) {
    this.process = process;
    this.desktop = launch.desktop;
    this.page = page;
    this.window = window;
    this.url = url;
    this.#logFile = launch.logFile;
  }

  /** Closes the window with its close button and gives the exit code. */
  abstract close(): Promise<number | string>;

  /** All that the log holds by now, earlier runs included, with the line ends of text files on Linux. */
  log(): string {
    return existsSync(this.#logFile) ? readFileSync(this.#logFile, 'utf8').replaceAll('\r\n', '\n') : '';
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
    return this.page.evaluate(() => (document.body as HTMLElement | null)?.innerText ?? '');
  }

  async shows(text: string, milliseconds?: number) {
    await until(`"${text}" in the window`, async () => (await this.text()).includes(text), milliseconds);
  }
}

/** The page's origin as soon as it is loaded. What is asked of the empty page before it can get lost on the way. */
export function loadedPage(page: ScriptablePage): Promise<string | false> {
  const look = () => document.readyState === 'complete' && location.origin.startsWith('http') && location.origin;
  return page.evaluate(look).catch(() => false);
}

/** What the page was given of the command line. */
export function launchArgs(program: RunningProgram): Promise<unknown> {
  return program.page.evaluate(() => (window as { tessary?: { args?: unknown } }).tessary?.args);
}
