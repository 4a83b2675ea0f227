import { once } from 'node:events';
import { readFileSync } from 'node:fs';
import { connect, type Socket } from 'node:net';
import { until } from './until';

/** Fewer than the system keeps waiting for the server; it may drop what comes beyond. */
const AT_ONCE = 64;

/** A connection to the program's server on which anything can be sent, at any pace. */
export async function rawConnection(port: number): Promise<Socket> {
  const socket = connect({ host: '127.0.0.1', port, noDelay: true });
  await once(socket, 'connect');
  socket.on('error', () => {}); // a server that has had enough may reset
  return socket;
}

/** Sends a request that asks the server to close the connection after it, and gives all that comes back. */
export async function ask(port: number, request: string): Promise<string> {
  const socket = await rawConnection(port);
  socket.write(request);
  return allFrom(socket);
}

/** Sends some bytes, says that no more will come, and gives what comes back. */
export async function sendAndFinish(port: number, bytes: string | Uint8Array): Promise<string> {
  const socket = await rawConnection(port);
  socket.end(bytes);
  return allFrom(socket);
}

/** What comes until the other side closes the connection. */
async function allFrom(socket: Socket): Promise<string> {
  let received = '';
  socket.setEncoding('latin1').on('data', (piece: string) => (received += piece));
  await once(socket, 'close');
  return received;
}

/** Sends some bytes and is gone, without a look at the answer. */
export async function sendAndLeave(port: number, bytes: string | Uint8Array): Promise<void> {
  const socket = await rawConnection(port);
  const closed = once(socket, 'close');
  socket.write(bytes, () => socket.destroy());
  await closed;
}

/** Connections that stay open and send a byte of a request that never ends now and then. */
export class SlowConnections {
  readonly #sockets: Socket[];
  #closedByServer = 0;

  private constructor(sockets: Socket[]) {
    this.#sockets = sockets;
    for (const socket of sockets) socket.on('close', () => this.#closedByServer++);
  }

  /** @param milliseconds - between two bytes on each connection */
  static async open(port: number, count: number, milliseconds: number): Promise<SlowConnections> {
    const drip = async () => {
      const socket = await rawConnection(port);
      socket.write('GET / HTTP/1.1\r\nHost: localhost\r\nX-Slow: ');
      const dripping = setInterval(() => socket.write('a'), milliseconds);
      socket.on('close', () => clearInterval(dripping));
      return socket;
    };
    const sockets: Socket[] = [];
    while (sockets.length < count) {
      sockets.push(...(await Promise.all(Array.from({ length: Math.min(AT_ONCE, count - sockets.length) }, drip))));
      await until('the server to take the connections', () => waitingConnections(port) === 0);
    }
    return new SlowConnections(sockets);
  }

  /** How many the server has not closed by now. */
  get open(): number {
    return this.#sockets.length - this.#closedByServer;
  }

  close() {
    for (const socket of this.#sockets) socket.destroy();
  }
}

/** How many connections to a listening port of 127.0.0.1 its program has not taken yet. */
function waitingConnections(port: number): number {
  const address = `0100007F:${port.toString(16).toUpperCase().padStart(4, '0')}`;
  const [, waiting] =
    new RegExp(`${address} 00000000:0000 0A \\w+:(\\w+)`).exec(readFileSync('/proc/net/tcp', 'utf8')) ?? [];
  if (waiting === undefined) throw new Error(`Nobody listens on port ${port}`);
  return parseInt(waiting, 16);
}
