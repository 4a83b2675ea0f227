import { type ChildProcess, spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import type { Readable, Writable } from 'node:stream';

interface Message {
  id?: number;
  sessionId?: string;
  method?: string;
  params?: Record<string, unknown>;
  result?: Record<string, unknown>;
  error?: { message: string };
}
interface Waiting {
  resolve: (result: Record<string, unknown>) => void;
  reject: (error: Error) => void;
}

/** Debian's Chromium without its windows, which take processor time. It is spoken to over a pipe in the DevTools protocol: JSON texts, each ended by a NUL. */
export class Chromium {
  readonly #process: ChildProcess;
  readonly #profile: string;
  readonly #commands: Writable;
  readonly #waiting = new Map<number, Waiting>();
  readonly #tabs = new Map<string, Tab>();
  #rest = '';
  #lastId = 0;

  constructor() {
    this.#profile = mkdtempSync(join(tmpdir(), 'tessary-chromium-'));
    const switches = ['--no-sandbox', '--disable-gpu', '--disable-dev-shm-usage', '--no-first-run'];
    const quiet = ['--disable-background-networking', '--disable-component-update', '--disable-sync', '--disable-quic'];
    const pipe = ['--remote-debugging-pipe', `--user-data-dir=${this.#profile}`];
    this.#process = spawn('chromium-headless-shell', [...switches, ...quiet, ...pipe], {
      stdio: ['ignore', 'ignore', 'ignore', 'pipe', 'pipe'],
      detached: true,
    });
    this.#commands = this.#process.stdio[3] as Writable;
    this.#commands.on('error', () => this.#fail());
    const answers = this.#process.stdio[4] as Readable;
    answers.setEncoding('utf8').on('data', (text: string) => this.#receive(text));
    this.#process.once('error', () => this.#fail());
    this.#process.once('exit', () => this.#fail());
  }

  /** Opens an empty tab that shares nothing with others. */
  async open(): Promise<Tab> {
    const { browserContextId } = await this.call('Target.createBrowserContext', { disposeOnDetach: true });
    const { targetId } = await this.call('Target.createTarget', { url: 'about:blank', browserContextId });
    const { sessionId } = await this.call('Target.attachToTarget', { targetId, flatten: true });
    const tab = new Tab(this, sessionId as string, browserContextId as string);
    this.#tabs.set(sessionId as string, tab);
    return tab;
  }

  call(method: string, params: object = {}, sessionId?: string): Promise<Record<string, unknown>> {
    const id = ++this.#lastId;
    return new Promise((resolve, reject) => {
      this.#waiting.set(id, { resolve, reject });
      this.#commands.write(`${JSON.stringify({ id, method, params, sessionId })}\0`);
    });
  }

  async stop() {
    if (this.#process.exitCode === null && this.#process.signalCode === null) {
      const gone = once(this.#process, 'exit');
      if (this.#process.pid !== undefined) process.kill(-this.#process.pid, 'SIGKILL');
      await gone;
    }
    rmSync(this.#profile, { recursive: true, force: true, maxRetries: 5 });
  }

  #receive(text: string) {
    const parts = (this.#rest + text).split('\0');
    this.#rest = parts.pop() ?? '';
    for (const part of parts) this.#handle(JSON.parse(part) as Message);
  }

  #handle(message: Message) {
    if (message.id === undefined) {
      if (message.method && message.sessionId) this.#tabs.get(message.sessionId)?.raise(message.method, message.params);
      return;
    }
    const waiting = this.#waiting.get(message.id);
    this.#waiting.delete(message.id);
    if (message.error) waiting?.reject(new Error(message.error.message));
    else waiting?.resolve(message.result ?? {});
  }

  #fail() {
    for (const { reject } of this.#waiting.values()) reject(new Error('Chromium has ended'));
    this.#waiting.clear();
  }
}

/** One page of a browser, with its own storage. */
export class Tab {
  readonly #browser: Chromium;
  readonly #session: string;
  readonly #context: string;
  readonly #listeners: ((method: string, params: Record<string, unknown>) => void)[] = [];

  constructor(browser: Chromium, session: string, context: string) {
    this.#browser = browser;
    this.#session = session;
    this.#context = context;
  }

  call(method: string, params: object = {}): Promise<Record<string, unknown>> {
    return this.#browser.call(method, params, this.#session);
  }

  onEvent(listener: (method: string, params: Record<string, unknown>) => void) {
    this.#listeners.push(listener);
  }

  raise(method: string, params: Record<string, unknown> = {}) {
    for (const listener of this.#listeners) listener(method, params);
  }

  async close() {
    await this.#browser.call('Target.disposeBrowserContext', { browserContextId: this.#context });
  }
}
