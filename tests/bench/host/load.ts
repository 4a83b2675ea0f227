// A small load client: a few kept connections, each asking again as soon as it is answered.
import { connect, type Socket } from 'node:net';

export interface Load {
  path: string;
  headers: string;
  connections: number;
  milliseconds: number;
}

export interface LoadResult {
  requestsPerSecond: number;
  /** In milliseconds. */
  median: number;
  p99: number;
  /** Bytes of one answer's body. */
  bytes: number;
}

interface Answer {
  bytes: number;
  closes: boolean;
}

/** One connection, opened anew when the server closes it after its share of requests. */
class Connection {
  #socket: Socket | undefined;
  readonly #port: number;
  readonly #request: string;

  constructor(port: number, { path, headers }: Load) {
    this.#port = port;
    this.#request = `GET ${path} HTTP/1.1\r\nHost: localhost:${port}\r\n${headers}\r\n`;
  }

  async ask(): Promise<Answer> {
    this.#socket ??= connect({ host: 'localhost', port: this.#port, noDelay: true });
    const answer = await answerOn(this.#socket, this.#request);
    if (answer.closes) this.close();
    return answer;
  }

  close() {
    this.#socket?.destroy();
    this.#socket = undefined;
  }
}

function answerOn(socket: Socket, request: string): Promise<Answer> {
  return new Promise((resolve, reject) => {
    let head = '';
    let missing = Infinity;
    let answer: Answer = { bytes: 0, closes: false };
    const receive = (piece: Buffer) => {
      if (missing === Infinity) {
        head += piece.toString('latin1');
        const end = head.indexOf('\r\n\r\n');
        if (end < 0) return;
        const bytes = Number(/^content-length: (\d+)/im.exec(head)?.[1]);
        if (!head.startsWith('HTTP/1.1 200') || Number.isNaN(bytes)) return reject(new Error(head.slice(0, 200)));
        answer = { bytes, closes: /^connection: close/im.test(head.slice(0, end)) };
        missing = bytes - (head.length - end - 4);
      } else {
        missing -= piece.length;
      }
      if (missing > 0) return;
      socket.off('data', receive).off('error', reject);
      resolve(answer);
    };
    socket.on('data', receive).on('error', reject);
    socket.write(request);
  });
}

export async function putUnderLoad(port: number, load: Load): Promise<LoadResult> {
  const latencies: number[] = [];
  let bytes = 0;
  const begin = performance.now();
  const end = begin + load.milliseconds;
  const work = async () => {
    const connection = new Connection(port, load);
    while (performance.now() < end) {
      const asked = performance.now();
      ({ bytes } = await connection.ask());
      latencies.push(performance.now() - asked);
    }
    connection.close();
  };
  await Promise.all(Array.from({ length: load.connections }, work));
  const seconds = (performance.now() - begin) / 1000;
  latencies.sort((a, b) => a - b);
  const at = (part: number) => latencies[Math.min(latencies.length - 1, Math.floor(latencies.length * part))] ?? NaN;
  return { requestsPerSecond: latencies.length / seconds, median: at(0.5), p99: at(0.99), bytes };
}
