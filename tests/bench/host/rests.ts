// What the program takes of the processors while nobody touches it, beside the least window that shows a page.
import { execFile } from 'node:child_process';
import { join } from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { promisify } from 'node:util';
import { Session } from './session.ts';
import { rowsIn } from './starts.ts';

/** Milliseconds after the start: the engine gives back what it needed. */
const SETTLED_AFTER = 45_000;
/** Milliseconds in which the windows are watched. Every half minute the engine looks at its memory, which takes longer than all else. */
const WATCHED = 30_000;
/** From the first field of the sample document to its bits. */
const TO_THE_BITS = ['Tab', 'Home'];

/**
 * Windows at rest hardly disturb each other: each gets a screen of its own, and all are watched at once.
 * @param tools - the folder of the built tools
 */
export async function compareRests(root: string, tools: string, folder: string): Promise<void> {
  const watch = async (place: number, name?: string, keys: string[] = []) => {
    const session = await Session.start(join(folder, name ?? `rest-${place}`));
    try {
      const row = rowsIn(root, tools, session)[place]!;
      const { idle } = await session.measure(join(tools, 'watch_start'), WATCHED, row.command, async () => {
        if (keys.length > 0) await press(session, keys);
        await pause(SETTLED_AFTER);
      });
      return `${name ?? row.name} ${(idle / (WATCHED / 10)).toFixed(4)} s`;
    } finally {
      await session.stop();
    }
  };
  const rests = [watch(0), watch(1), watch(2), watch(2, 'with the bit cursor shown', TO_THE_BITS)];
  console.log(`At rest, processor time for each 10 s, 45 s after the start: ${(await Promise.all(rests)).join(', ')}.`);
}

async function press({ env }: Session, keys: string[]): Promise<void> {
  const window = ['search', '--onlyvisible', '--name', '^Tessary$', 'windowfocus', '--sync'];
  await promisify(execFile)('xdotool', [...window, 'key', '--delay', '100', ...keys], { env });
}
