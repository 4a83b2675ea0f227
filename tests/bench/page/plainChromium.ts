import { type ChildProcess, execFileSync, spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { processorTime, treeOf } from '../processTree.ts';

const OPTIONS = [
  '--headless',
  '--no-sandbox',
  '--disable-gpu',
  '--disable-quic',
  '--no-first-run',
  '--disable-background-networking',
  '--remote-debugging-port=0',
];

/** For a page until it is shown, in milliseconds. */
const LONGEST = 60_000;
/** A browser that uses no processor for as long, in milliseconds, has nothing left to do. */
const REST = 200;

interface Message {
  id?: number;
  method?: string;
  params?: { targetInfo?: { targetId: string; url: string } };
  result?: { browserContextId: string; targetId: string };
  error?: { message: string };
}

/**
 * Chromium as its users have it: it is told which pages to open, and nothing inspects them. For an inspector it works out
 * where each function of a script stands, which is a tenth of the start of a page.
 */
export class PlainChromium {
  readonly #profile: string;
  readonly #process: ChildProcess;
  readonly #socket: WebSocket;
  #calls = 0;
  readonly #answers = new Map<number, (message: Message) => void>();
  readonly #addresses = new Map<string, (url: string) => void>();

  private constructor(profile: string, process: ChildProcess, socket: WebSocket) {
    this.#profile = profile;
    this.#process = process;
    this.#socket = socket;
    socket.onmessage = ({ data }) => this.#hear(JSON.parse(String(data)) as Message);
  }

  static async start(): Promise<PlainChromium> {
    const chromium = execFileSync('sh', ['-c', 'command -v chromium'], { encoding: 'utf8' }).trim();
    const profile = mkdtempSync(join(tmpdir(), 'tessary-chromium-'));
    const child = spawn(chromium, [...OPTIONS, `--user-data-dir=${profile}`], { stdio: ['ignore', 'ignore', 'pipe'] });
    const socket = new WebSocket(await addressIn(child));
    await once(socket, 'open');
    const browser = new PlainChromium(profile, child, socket);
    await browser.#call('Target.setDiscoverTargets', { discover: true });
    return browser;
  }

  /**
   * Opens a page of 800 by 600 pixels in a new profile, and closes it with what it leaves for: "about:blank#WHAT".
   * Bars and lists of the new window are pages, too, and made at the same time: the page is to begin when it gets its
   * first cookie, once the browser rests.
   */
  async lastWords(url: string): Promise<string> {
    const { browserContextId } = await this.#call('Target.createBrowserContext');
    const { targetId } = await this.#call('Target.createTarget', { url, browserContextId, width: 800, height: 600 });
    const left = new Promise<string>((resolve, reject) => {
      this.#addresses.set(targetId, resolve);
      setTimeout(() => reject(new Error(`Chromium never showed ${url}`)), LONGEST).unref();
    });
    await this.#rest();
    await this.#call('Storage.setCookies', { browserContextId, cookies: [{ name: 'begin', value: 'now', url }] });
    const words = decodeURIComponent(await left);
    this.#addresses.delete(targetId);
    await this.#call('Target.disposeBrowserContext', { browserContextId });
    return words;
  }

  async stop(): Promise<void> {
    const ended = once(this.#process, 'exit');
    this.#process.kill();
    await ended;
    rmSync(this.#profile, { recursive: true, force: true, maxRetries: 5 });
  }

  async #rest(): Promise<void> {
    const begin = performance.now();
    for (let before = NaN, used = this.#processorTime(); used !== before; used = this.#processorTime()) {
      if (performance.now() - begin > LONGEST) throw new Error('Chromium never comes to rest');
      before = used;
      await pause(REST);
    }
  }

  #processorTime(): number {
    const used = treeOf(this.#process.pid!).map((pid) => {
      try {
        return processorTime(pid);
      } catch {
        return 0; // it has ended
      }
    });
    return used.reduce((sum, each) => sum + each);
  }

  async #call(method: string, params: object = {}): Promise<NonNullable<Message['result']>> {
    const id = ++this.#calls;
    const answer = new Promise<Message>((resolve) => this.#answers.set(id, resolve));
    this.#socket.send(JSON.stringify({ id, method, params }));
    const { result, error } = await answer;
    if (result === undefined) throw new Error(`${method}: ${error?.message}`);
    return result;
  }

  #hear(message: Message): void {
    const { targetId, url = '' } = message.params?.targetInfo ?? {};
    const words = /^about:blank#(.+)/.exec(url)?.[1];
    if (targetId !== undefined && words !== undefined) this.#addresses.get(targetId)?.(words);
    if (message.id === undefined) return;
    this.#answers.get(message.id)?.(message);
    this.#answers.delete(message.id);
  }
}

/** Where the browser takes commands, which it says once it is there. */
async function addressIn({ stderr }: ChildProcess): Promise<string> {
  let said = '';
  for await (const text of stderr!) {
    const address = /listening on (ws:\S+)/.exec((said += String(text)))?.[1];
    if (address !== undefined) return address;
  }
  throw new Error(`Chromium did not start: ${said}`);
}
