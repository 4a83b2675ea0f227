import { expect, test as running } from '@playwright/test';
import { readdirSync, readFileSync } from 'node:fs';
import { Agent, type IncomingHttpHeaders, request } from 'node:http';
import { join } from 'node:path';
import { brotliDecompressSync } from 'node:zlib';
import { dist } from '../support/shared/paths';
import type { RunningProgram } from '../support/shared/runningProgram';
import type { StoryTest } from '../support/shared/storyTest';
import { until } from '../support/shared/until';

interface Reply {
  status: number;
  headers: IncomingHttpHeaders;
  body: Buffer;
}
interface Ask {
  method?: string;
  headers?: Record<string, string>;
}

/** Asks for a path exactly as it is written, on a connection that is kept. */
class Client {
  readonly #agent = new Agent({ keepAlive: true, maxSockets: 1 });
  readonly #port: string;

  constructor(program: RunningProgram) {
    this.#port = new URL(program.url).port;
  }

  ask(path: string, { method = 'GET', headers = {} }: Ask = {}): Promise<Reply> {
    const options = { host: 'localhost', port: this.#port, path, method, headers, agent: this.#agent };
    return new Promise((resolve, reject) => {
      const asked = request(options, (response) => {
        const pieces: Buffer[] = [];
        response.on('data', (piece: Buffer) => pieces.push(piece));
        response.on('end', () =>
          resolve({ status: response.statusCode ?? 0, headers: response.headers, body: Buffer.concat(pieces) }),
        );
        response.on('error', reject);
      });
      asked.on('error', reject);
      asked.end();
    });
  }

  close() {
    this.#agent.destroy();
  }
}

const scriptName = readdirSync(join(dist, 'assets')).find((name) => name.endsWith('.js')) ?? '';
const styleName = readdirSync(join(dist, 'assets')).find((name) => name.endsWith('.css')) ?? '';
const notFound = { status: 404, type: 'text/plain', body: 'Not Found' };

const longestTarget = 8192;

/** Asks for paths of many lengths up to the longest, and beyond. */
export async function askForLongPaths(program: RunningProgram) {
  const client = new Client(program);
  const lengths = [...Array(129).keys()].map((step) => 1 + step * 64).filter((length) => length < longestTarget);
  for (const length of [...lengths, longestTarget - 1, longestTarget]) {
    const { status } = await client.ask(`/${'a'.repeat(length - 1)}`);
    expect({ length, status }).toEqual({ length, status: length === 1 ? 200 : 404 });
  }
  expect((await client.ask(`/${'a'.repeat(longestTarget)}`)).status).toBe(414);
  client.close();
}

/** The lines of the requests in the log's last line, which must hold nothing else. */
function loggedRequests(program: RunningProgram): string[] {
  const line = program.log().split('\n').at(-1) ?? '';
  const requests = line.match(/\[HTTP(-ERR)?\] [A-Z]+ .+? -> \d{3}/g) ?? [];
  expect(requests.join('')).toBe(line);
  return requests;
}

/** What the program answers to those who ask its server, on every system. */
export function serverStories(test: StoryTest) {
  test('every file of the page is served as it is, with its type', async ({ open }) => {
    const client = new Client(await open());
    for (const [path, file, type] of [
      ['/', 'index.html', 'text/html'],
      ['/index.html?x=1', 'index.html', 'text/html'],
      [`/assets/${scriptName}`, `assets/${scriptName}`, 'application/javascript'],
      [`/assets/${styleName}`, `assets/${styleName}`, 'text/css'],
      ['/favicon.ico', 'favicon.ico', 'image/x-icon'],
      ['//favicon.ico', 'favicon.ico', 'image/x-icon'],
      ['/favicon.ico/', 'favicon.ico', 'application/octet-stream'], // its last component has no extension
      ['/sw.js', 'sw.js', 'application/javascript'],
      ['/manifest.webmanifest', 'manifest.webmanifest', 'application/octet-stream'],
    ] as const) {
      const reply = await client.ask(path);
      expect({ path, status: reply.status, type: reply.headers['content-type'] }).toEqual({ path, status: 200, type });
      expect(reply.body.equals(readFileSync(join(dist, file)))).toBe(true);
    }
    client.close();
  });

  test('what is not in the page is not found', async ({ open }) => {
    const client = new Client(await open());
    for (const path of [
      '/settings',
      '/tools/words',
      '/package.json',
      '/dist/index.html',
      '/assets',
      '/assets/',
      '/app-icons',
      '/assets/../index.html',
      '/../package.json',
      '/%2e%2e/package.json',
      '/FAVICON.ICO',
      '/etc/passwd',
    ]) {
      const { status, headers, body } = await client.ask(path);
      expect({ path, status, type: headers['content-type'], body: body.toString() }).toEqual({ path, ...notFound });
    }
    client.close();
  });

  test('methods that the server does not know are not found, and HEAD has no body', async ({ open }) => {
    const client = new Client(await open());
    for (const method of ['POST', 'PUT', 'DELETE', 'OPTIONS', 'PATCH']) {
      const { status, headers, body } = await client.ask('/', { method });
      expect({ method, status, type: headers['content-type'], body: body.toString() }).toEqual({ method, ...notFound });
    }
    const head = await client.ask('/', { method: 'HEAD' });
    expect(head.status).toBe(200);
    expect(head.headers['content-type']).toBe('text/html');
    expect(Number(head.headers['content-length'])).toBe(readFileSync(join(dist, 'index.html')).length);
    expect(head.body).toHaveLength(0);
    client.close();
  });

  test('requests stand in the log one after the other, without line breaks', async ({ open }) => {
    const program = await open();
    await program.shows('Open Words Tool');
    const client = new Client(program);
    await client.ask('/settings?x=1');
    await client.ask('/', { method: 'POST' });
    await client.ask('/a%20b%C3%A9');
    client.close();
    // The browser may still be fetching fonts and icons: its requests can stand between any two of ours.
    const asked = () => loggedRequests(program).filter((line) => / (GET \/settings|POST \/|GET \/a bé) /.test(line));
    await until('the requests in the log', () => asked().length >= 6);
    expect(asked()).toEqual([
      '[HTTP-ERR] GET /settings -> 404',
      '[HTTP] GET /settings -> 404',
      '[HTTP-ERR] POST / -> 404',
      '[HTTP] POST / -> 404',
      '[HTTP-ERR] GET /a bé -> 404',
      '[HTTP] GET /a bé -> 404',
    ]);
    expect(loggedRequests(program).slice(0, 2)).toEqual([
      '[HTTP] GET / -> 200',
      expect.stringMatching(/^\[HTTP\] GET \/assets\//),
    ]);
  });

  test('the script is compressed with Brotli for those who take it, and for nobody else', async ({ open }) => {
    const client = new Client(await open());
    const script = readFileSync(join(dist, 'assets', scriptName));
    const path = `/assets/${scriptName}`;
    const begin = performance.now();
    const packed = await client.ask(path, { headers: { 'Accept-Encoding': 'gzip, deflate, br, zstd' } });
    running
      .info()
      .annotations.push({ type: 'compressed in', description: `${(performance.now() - begin).toFixed(1)} ms` });
    expect(packed.headers['content-encoding']).toBe('br');
    expect(brotliDecompressSync(packed.body).equals(script)).toBe(true);
    for (const encoding of ['gzip, deflate', 'identity', '']) {
      const plain = await client.ask(path, { headers: { 'Accept-Encoding': encoding } });
      expect(plain.headers['content-encoding']).toBeUndefined();
      expect(plain.body.equals(script)).toBe(true);
    }
    client.close();
  });

  test('paths of every length are answered', async ({ open }) => {
    const program = await open();
    await program.shows('Open Words Tool');
    await askForLongPaths(program);
    expect(await program.close()).toBe(0);
  });
}
