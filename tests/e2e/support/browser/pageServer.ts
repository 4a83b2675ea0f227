import { readFile, stat } from 'node:fs/promises';
import { createServer, type Server, type ServerResponse } from 'node:http';
import type { AddressInfo } from 'node:net';
import { extname, join, normalize, sep } from 'node:path';

/** Only these types are known; everything else, the web manifest too, is a plain stream of bytes. */
const TYPES: Record<string, string> = {
  '.html': 'text/html',
  '.js': 'application/javascript',
  '.css': 'text/css',
  '.json': 'application/json',
  '.svg': 'image/svg+xml',
  '.png': 'image/png',
  '.ico': 'image/x-icon',
  '.woff': 'font/woff',
  '.woff2': 'font/woff2',
};

export interface PageServer {
  /** Ends without "/". */
  url: string;
  close(): Promise<void>;
}

/** Serves a built page on a free loopback port as the native host does: "/" is index.html, what is missing is a 404. */
export async function servePage(folder: string): Promise<PageServer> {
  const server = createServer((request, response) => {
    void answer(folder, request.url ?? '/', response);
  });
  await new Promise<void>((resolve) => server.listen(0, '127.0.0.1', resolve));
  const { port } = server.address() as AddressInfo;
  return { url: `http://localhost:${port}`, close: () => close(server) };
}

async function answer(folder: string, url: string, response: ServerResponse): Promise<void> {
  const path = decodeURIComponent(new URL(url, 'http://localhost').pathname);
  const file = normalize(join(folder, path === '/' ? 'index.html' : path));
  try {
    if (!file.startsWith(folder + sep) || !(await stat(file)).isFile()) throw new Error('no such file');
    const body = await readFile(file);
    response
      .writeHead(200, {
        'Content-Type': TYPES[extname(file)] ?? 'application/octet-stream',
      })
      .end(body);
  } catch {
    response.writeHead(404, { 'Content-Type': 'text/plain' }).end('Not Found');
  }
}

function close(server: Server): Promise<void> {
  server.closeAllConnections();
  return new Promise((resolve, reject) => server.close((error) => (error ? reject(error) : resolve())));
}
