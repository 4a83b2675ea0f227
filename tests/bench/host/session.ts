// A screen and a home that nobody else uses, and the programs that run there.
import { type ChildProcess, spawn } from 'node:child_process';
import { once } from 'node:events';
import { copyFileSync, mkdirSync, readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { createInterface, type Interface } from 'node:readline';
import { setTimeout as pause } from 'node:timers/promises';
import { proportionalSize, treeOf } from '../processTree.ts';

/** A process that reports something in the first line that it prints. */
interface Speaking {
  process: ChildProcess;
  lines: Interface;
  firstLine: string;
}

async function startSpeaking(command: string, options: string[], env: NodeJS.ProcessEnv): Promise<Speaking> {
  const process = spawn(command, options, { env, stdio: ['pipe', 'pipe', 'ignore'] });
  const lines = createInterface({ input: process.stdout });
  const [firstLine] = (await once(lines, 'line', { signal: AbortSignal.timeout(60_000) })) as [string];
  return { process, lines, firstLine };
}

async function end(process: ChildProcess) {
  process.stdin?.end();
  await once(process, 'exit');
}

/** One start of a program. Times are milliseconds since the start of its process. */
export interface Sample {
  /** The window is there. */
  window: number;
  /** The first frame in which the text has its full contrast. */
  readable: number;
  /** Processor time of all processes until three seconds after that, in milliseconds. */
  processor: number;
  /** Memory of the process and all that it started, in MB: proportional set size, at that moment. */
  memory: number;
  /** Processor time of all processes in the next `idleFor` milliseconds, in milliseconds. */
  idle: number;
}

/** A copy of the program with a screen and a home of its own. */
export class Session {
  readonly folder: string;
  readonly env: NodeJS.ProcessEnv;
  readonly #screen: ChildProcess;

  private constructor(folder: string, screen: Speaking) {
    this.folder = folder;
    this.#screen = screen.process;
    this.env = environment(folder);
    this.env.DISPLAY = `:${screen.firstLine}`;
  }

  static async start(folder: string): Promise<Session> {
    mkdirSync(join(folder, 'home', 'runtime'), { recursive: true, mode: 0o700 });
    const options = ['-displayfd', '1', '-screen', '0', '1280x1024x24', '-nolisten', 'tcp', '-noreset'];
    return new Session(folder, await startSpeaking('Xvfb', options, environment(folder)));
  }

  /**
   * Starts a program, watches how it comes up and rests, and ends it.
   * @param watcher - the built watch_start
   * @param settle - what is waited for before its rest is watched
   */
  async measure(
    watcher: string,
    idleFor: number,
    command: string[],
    settle = () => Promise.resolve(),
  ): Promise<Sample> {
    const { process, lines, firstLine } = await startSpeaking(watcher, [String(idleFor), ...command], this.env);
    const [pid = 0, window = NaN, , readable = NaN, processor = NaN] = firstLine.split(' ').map(Number);
    const memory = treeOf(pid).reduce((sum, each) => sum + proportionalSize(each), 0);
    await settle();
    const rested = once(lines, 'line');
    process.stdin?.write('\n');
    const [idle] = (await rested) as [string];
    await end(process);
    return { window, readable, processor, memory, idle: Number(idle) };
  }

  async stop() {
    this.#screen.kill();
    await once(this.#screen, 'exit');
  }
}

function environment(folder: string): NodeJS.ProcessEnv {
  const home = join(folder, 'home');
  return {
    PATH: process.env.PATH,
    LANG: 'C.UTF-8',
    HOME: home,
    XDG_RUNTIME_DIR: join(home, 'runtime'),
    GSETTINGS_BACKEND: 'memory',
    NO_AT_BRIDGE: '1',
    DBUS_SESSION_BUS_ADDRESS: 'disabled:',
  };
}

/** A running program whose server is there to be asked. */
export class Served {
  readonly port: number;
  readonly #process: ChildProcess;

  /** Runs a program that prints its port. */
  static async speaking(session: Session, command: string, options: string[]): Promise<Served> {
    const { process, firstLine } = await startSpeaking(command, options, session.env);
    return new Served(process, Number(firstLine));
  }

  private constructor(process: ChildProcess, port: number) {
    this.#process = process;
    this.port = port;
  }

  get pid(): number {
    return this.#process.pid ?? 0;
  }

  /** Runs a copy of the executable, so that no memory is shared with another one, from its own folder. */
  static async start(session: Session, executable: string): Promise<Served> {
    const copy = join(session.folder, 'tessary');
    copyFileSync(executable, copy);
    const process = spawn(copy, [], { env: session.env, stdio: 'ignore' });
    for (let attempt = 0; attempt < 400; attempt++) {
      await pause(25);
      const port = /Server URL: http:\/\/localhost:(\d+)\n/.exec(logOf(session.folder))?.[1];
      if (port !== undefined) return new Served(process, Number(port));
    }
    process.kill();
    throw new Error('The program did not start its server');
  }

  async stop() {
    this.#process.kill();
    await once(this.#process, 'exit');
  }
}

function logOf(folder: string): string {
  return readdirSync(folder).includes('debug.log') ? readFileSync(join(folder, 'debug.log'), 'utf8') : '';
}
