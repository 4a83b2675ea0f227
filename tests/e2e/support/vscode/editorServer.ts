import { type ChildProcess, spawn } from 'node:child_process';
import { once } from 'node:events';
import { cpSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { until } from '../shared/until';
import { editorServer } from './paths';

/** The editor's server with a home of its own, in which the extension is installed. Listens on the loopback only. */
export class EditorServer {
  #output = '';

  private constructor(
    readonly home: string,
    readonly process: ChildProcess,
  ) {}

  static async start(): Promise<EditorServer> {
    const home = mkdtempSync(join(tmpdir(), 'tessary-editor-'));
    cpSync(process.env.TESSARY_EDITOR_HOME!, home, { recursive: true });
    const options = [
      '--host',
      '127.0.0.1',
      '--port',
      '0',
      '--without-connection-token',
      '--accept-server-license-terms',
    ];
    const child = spawn(
      process.execPath,
      [editorServer, ...options, '--disable-workspace-trust', '--server-data-dir', home],
      {
        stdio: ['ignore', 'pipe', 'pipe'],
        detached: true, // a group of its own, with the processes that it starts for its windows
        env: { PATH: process.env.PATH, HOME: home, LANG: 'C.UTF-8' },
      },
    );
    const server = new EditorServer(home, child);
    for (const stream of [child.stdout, child.stderr]) {
      stream.setEncoding('utf8').on('data', (text: string) => (server.#output += text));
    }
    await until('the editor to listen', () => server.#port !== undefined || child.exitCode !== null);
    if (server.#port === undefined) throw new Error(`The editor did not start: ${server.#output}`);
    return server;
  }

  get #port(): string | undefined {
    return /listening on (\d+)/.exec(this.#output)?.[1];
  }

  /** The address of a window on a folder. */
  address(folder: string): string {
    return `http://127.0.0.1:${this.#port}/?folder=${encodeURIComponent(folder)}`;
  }

  async stop(): Promise<void> {
    if (this.process.exitCode === null) {
      const ended = once(this.process, 'exit');
      process.kill(-this.process.pid!);
      await ended;
    }
    rmSync(this.home, { recursive: true, force: true, maxRetries: 5 });
  }
}
