import { type ChildProcess, spawn } from 'node:child_process';
import { closeSync, mkdtempSync, openSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import type { Desktop } from './desktop';

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
