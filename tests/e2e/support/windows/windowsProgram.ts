import { type Launch, ProgramProcess } from '../shared/programProcess';
import { loadedPage, RunningProgram } from '../shared/runningProgram';
import { until } from '../shared/until';
import type { ChromiumWebView } from './chromiumWebView';
import type { FakeWebView2 } from './fakeWebView2';
import { type Control, readDialog } from './windowReader';
import type { WinePrefix } from './winePrefix';

/** What the program is started in. */
export interface WindowsSurroundings {
  prefix: WinePrefix;
  runtime: FakeWebView2;
  page: ChromiumWebView;
}

/** The Windows program under wine, with its page in a real browser behind the fake runtime. */
export class WindowsProgram extends RunningProgram<ChromiumWebView> {
  #surroundings!: WindowsSurroundings;

  /** `started` hears of the process before anything can go wrong with it. */
  static async start(
    launch: Launch,
    surroundings: WindowsSurroundings,
    started: (process: ProgramProcess) => void,
  ): Promise<WindowsProgram> {
    const process = new ProgramProcess(launch);
    started(process);
    const running = <T>(seen: T) => {
      if (!process.running) throw new Error(`The program ended before its page was loaded\nstderr: ${process.stderr}`);
      return seen;
    };
    const url = await until('the page', () => running(loadedPage(surroundings.page)));
    const ofTheProgram = () => launch.desktop.windowsOf(process.pid).find(({ title }) => title === 'Tessary');
    const window = await until('the window', () => running(ofTheProgram()));
    const program = new WindowsProgram(launch, process, surroundings.page, window, url);
    program.#surroundings = surroundings;
    return program;
  }

  get runtime(): FakeWebView2 {
    return this.#surroundings.runtime;
  }

  /** What is in the dialog or message box with this title, with the window itself first. */
  controls(title: string): Control[] {
    return readDialog(this.#surroundings.prefix, title);
  }

  async close(): Promise<number | string> {
    this.runtime.closeWindow();
    return this.process.exit();
  }
}
