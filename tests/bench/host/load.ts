// Runs the load client, and reads what it prints.
import { execFile } from 'node:child_process';
import { promisify } from 'node:util';

export interface Load {
  path: string;
  headers?: string;
  connections: number;
  /** How long each connection asks again; 0 for one request each. */
  milliseconds: number;
  /** How often all of this is done, with new connections. */
  bursts?: number;
}

export interface LoadResult {
  requests: number;
  requestsPerSecond: number;
  /** In milliseconds. */
  median: number;
  p99: number;
  longest: number;
  /** How many requests took 100 ms or longer. */
  late: number;
  /** Bytes of one answer's body. */
  bytes: number;
  /** Microseconds of processor time that the client took for a request. */
  clientTime: number;
}

/** @param client - the built load client */
export async function putUnderLoad(
  client: string,
  port: number,
  { path, headers = '', connections, milliseconds, bursts = 1 }: Load,
): Promise<LoadResult> {
  const { stdout } = await promisify(execFile)(
    client,
    [port, path, headers, connections, milliseconds, bursts].map(String),
  );
  const [requests = NaN, seconds = NaN, median = NaN, p99 = NaN, longest = NaN, late = NaN, bytes = NaN, used = NaN] =
    stdout.trim().split(' ').map(Number);
  return {
    requests,
    requestsPerSecond: requests / seconds,
    median,
    p99,
    longest,
    late,
    bytes,
    clientTime: (used / requests) * 1e3,
  };
}
