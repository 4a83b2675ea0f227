import { type ChildProcessByStdio, execFileSync, spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import type { Readable } from 'node:stream';
import { tools } from './paths';
import { until } from './until';

export interface DesktopWindow {
  id: string;
  title: string;
}

/** Something in a window, as a screen reader gets it. */
export interface Accessible {
  depth: number;
  state: 'hidden' | 'shown' | 'focused';
  role: string;
  name: string;
  text: string;
}

/** A place in a window, in pixels from its upper left corner. */
export interface Point {
  x: number;
  y: number;
}

type Service = ChildProcessByStdio<null, Readable, null>;

const moveTo = ({ id }: DesktopWindow, { x, y }: Point) => [
  ...['mousemove', '--window', id],
  ...[x, y].map((each) => String(Math.round(each))),
];

/**
 * A desktop session that nobody sees: a screen of 1280 by 1024 pixels without a window manager, and a session bus with
 * the services for assistive technology.
 */
export class Desktop {
  readonly #folder = mkdtempSync(join(tmpdir(), 'tessary-desktop-'));
  readonly #services: Service[] = [];
  readonly environment: Record<string, string | undefined> = {
    PATH: process.env.PATH,
    LANG: 'C.UTF-8',
    HOME: this.#folder,
  };

  static async start(): Promise<Desktop> {
    const desktop = new Desktop();
    try {
      const screen = ['-displayfd', '1', '-screen', '0', '1280x1024x24', '-nolisten', 'tcp', '-noreset'];
      desktop.environment.DISPLAY = `:${await desktop.#serve('Xvfb', screen)}`;
      const bus = ['--session', '--nofork', '--print-address=1'];
      desktop.environment.DBUS_SESSION_BUS_ADDRESS = await desktop.#serve('dbus-daemon', bus);
    } catch (error) {
      await desktop.stop();
      throw error;
    }
    return desktop;
  }

  async stop() {
    for (const service of this.#services.reverse()) {
      if (service.exitCode !== null) continue;
      service.kill();
      await once(service, 'exit');
    }
    rmSync(this.#folder, { recursive: true, force: true });
  }

  /** The windows of one process that can be seen now. */
  windowsOf(pid: number): DesktopWindow[] {
    const found = this.#query('xdotool', 'search', '--all', '--onlyvisible', '--pid', String(pid), '--name', '');
    return found
      .split('\n')
      .filter((id) => id !== '')
      .map((id) => ({ id, title: this.#query('xdotool', 'getwindowname', id).trim() }));
  }

  /** All that a screen reader gets of the windows of one process, and of the page in them where that is asked for. */
  accessiblesOf(pid: number, page?: 'page'): Accessible[] {
    return this.#query(`${tools}/accessible_tree`, String(pid), ...(page ? [page] : []))
      .split('\n')
      .filter((line) => /^\d+\t/.test(line))
      .map((line) => {
        const [depth, state, role = '', name = '', text = ''] = line.split('\t');
        return { depth: Number(depth), state: state as Accessible['state'], role, name, text };
      });
  }

  /**
   * Listens as a screen reader does. `act` may ask what was heard so far of live regions: their role, and the text.
   */
  async listen(act: (heard: () => [role?: string, text?: string][]) => Promise<void>) {
    const listener = spawn(`${tools}/accessible_events`, {
      env: this.environment,
      stdio: ['ignore', 'pipe', 'ignore'],
    });
    let printed = '';
    listener.stdout.setEncoding('utf8').on('data', (text: string) => (printed += text));
    const lines = () => printed.split('\n').slice(0, -1);
    try {
      await until('a screen reader to listen', () => lines()[0] === 'ready');
      await act(() =>
        lines()
          .slice(1)
          .map((line) => line.split('\t') as [string, string]),
      );
    } finally {
      listener.kill();
    }
  }

  /** What `xprop` or `xwininfo` say about a window. */
  describe(tool: 'xprop' | 'xwininfo', window: DesktopWindow, ...options: string[]): string {
    return this.#run(tool, '-id', window.id, ...options);
  }

  /** Without a window manager nobody else gives a new window the keyboard. */
  focus(window: DesktopWindow) {
    this.#run('xdotool', 'windowfocus', '--sync', window.id);
  }

  /** Presses keys one after the other, such as "ctrl+a" or "Return". */
  press(...keys: string[]) {
    this.#run('xdotool', 'key', '--clearmodifiers', ...keys);
  }

  /** Types a text. What no key of the keyboard gives is typed by its code point, as GTK offers it. */
  type(text: string) {
    for (const part of text.match(/[ -~]+|[^ -~]/gu) ?? []) {
      if (/^[ -~]/.test(part)) this.#run('xdotool', 'type', '--clearmodifiers', '--delay', '4', '--', part);
      else this.press('ctrl+shift+u', ...(part.codePointAt(0) ?? 0).toString(16), 'space');
    }
  }

  /** Presses the left button at a point of a window, in pixels from its upper left corner. */
  click(window: DesktopWindow, at: Point, times = 1) {
    this.#run('xdotool', ...moveTo(window, at), 'click', '--repeat', String(times), '--delay', '40', '1');
  }

  /** Presses the right button at a point of a window. */
  rightClick(window: DesktopWindow, at: Point) {
    this.#run('xdotool', ...moveTo(window, at), 'click', '3');
  }

  /** Moves the pointer with the left button held down. */
  drag(window: DesktopWindow, from: Point, to: Point) {
    this.#run('xdotool', ...moveTo(window, from), 'mousedown', '1', ...moveTo(window, to), 'mouseup', '1');
  }

  /** Moves the pointer with the left button and a key such as "shift" held down. */
  dragWith(key: string, window: DesktopWindow, from: Point, to: Point) {
    const held = ['mousedown', '1', ...moveTo(window, to), 'mouseup', '1'];
    this.#run('xdotool', 'keydown', key, ...moveTo(window, from), ...held, 'keyup', key);
  }

  /** Drags an address from another program to a point of a window, and lets it go where the window takes it. */
  async drop(address: string, window: DesktopWindow, at: Point) {
    const source = spawn(`${tools}/drag_source`, [address], {
      env: this.environment,
      stdio: ['ignore', 'pipe', 'ignore'],
    });
    let printed = '';
    source.stdout.setEncoding('utf8').on('data', (text: string) => (printed += text));
    try {
      await until('something to drag', () => printed.includes('ready'));
      await until('it to be dropped', async () => {
        printed = '';
        this.#dragByHand(window, at);
        await until('the end of the drag', () => printed !== '');
        return printed.includes('dropped');
      });
    } finally {
      source.kill();
    }
  }

  /** From the window of drag_source. Both programs hear of each move and answer it before the next. */
  #dragByHand(window: DesktopWindow, at: Point) {
    const pause = ['sleep', '0.1'];
    const near = { x: at.x - 10, y: at.y - 10 };
    const grab = ['mousemove', '950', '150', 'mousedown', '1', ...pause, 'mousemove', '920', '180', ...pause];
    this.#run('xdotool', ...grab, ...moveTo(window, near), ...pause, ...moveTo(window, at), ...pause, 'mouseup', '1');
  }

  /** The text on the clipboard, as another program gets it; empty where there is none. */
  clipboard(): string {
    return this.#query('xclip', '-selection', 'clipboard', '-out');
  }

  /** Puts a text on the clipboard as another program, which serves it until somebody else puts something there. */
  putOnClipboard(text: string) {
    execFileSync('xclip', ['-selection', 'clipboard', '-in'], {
      env: this.environment,
      input: text,
      stdio: ['pipe', 'ignore', 'ignore'],
    });
  }

  /** Turns the wheel by some notches where the pointer is put; upwards when negative. `held` is a key such as "ctrl". */
  wheel(window: DesktopWindow, at: Point, notches: number, held?: string) {
    const button = notches < 0 ? '4' : '5';
    const turn = ['click', '--repeat', String(Math.abs(notches)), button];
    const all = held === undefined ? turn : ['keydown', held, ...turn, 'keyup', held];
    this.#run('xdotool', ...moveTo(window, at), ...all);
  }

  /** Asks a window to close, as its close button does. */
  close(window: DesktopWindow) {
    this.#run(`${tools}/close_window`, window.id);
  }

  /** A picture of the whole screen, as PNG. */
  screenshot(): Buffer {
    return execFileSync('import', ['-window', 'root', 'png:-'], { env: this.environment, maxBuffer: 1e8 });
  }

  /** Starts a service and gives the first line that it prints. */
  async #serve(command: string, options: string[]): Promise<string> {
    const service = spawn(command, options, { env: this.environment, stdio: ['ignore', 'pipe', 'ignore'] });
    this.#services.push(service);
    let printed = '';
    service.stdout.setEncoding('utf8').on('data', (text: string) => (printed += text));
    await until(command, () => printed.includes('\n') || service.exitCode !== null);
    if (service.exitCode !== null) throw new Error(`${command} did not start`);
    return printed.trim();
  }

  #run(command: string, ...options: string[]): string {
    return execFileSync(command, options, {
      env: this.environment,
      encoding: 'utf8',
      stdio: ['ignore', 'pipe', 'pipe'],
    });
  }

  /** What a command prints; nothing when it fails, as a search does that finds no window. */
  #query(command: string, ...options: string[]): string {
    try {
      return this.#run(command, ...options);
    } catch {
      return '';
    }
  }
}
