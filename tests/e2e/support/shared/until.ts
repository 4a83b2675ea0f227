import { setTimeout as pause } from 'node:timers/promises';

/**
 * Looks again and again until there is something to see.
 * @param what - what is waited for, as the failure's message says it
 * @param look - gives undefined or false as long as it is not there
 * @returns what `look` gave at last
 */
export async function until<T>(
  what: string,
  look: () => T | undefined | false | Promise<T | undefined | false>,
  milliseconds = 60_000,
): Promise<T> {
  const end = performance.now() + milliseconds;
  for (;;) {
    const seen = await look();
    if (seen !== undefined && seen !== false) return seen;
    if (performance.now() > end) throw new Error(`Waited ${milliseconds} ms in vain for ${what}`);
    await pause(25);
  }
}
