import { test } from '../../e2e/support/linux/fixtures';
import type { Program } from '../../e2e/support/linux/program';
import { documentText } from '../../e2e/support/shared/documents';
import { until } from '../../e2e/support/shared/until';
import { type Action, ACTIONS, BARE_ACTIONS, hexDigits, prepareWindow } from './actions';
import { appearance, makeBare } from './appearance';
import { framesWhile } from './frameTimes';

const tries = Number(process.env.TESSARY_BENCH_TRIES ?? 20);
const chosen = process.env.TESSARY_BENCH_ACTION ?? '';
/** The longest that a frame is to take, in milliseconds. */
const AIM = 50;

const wideSheet = (id: string, seed: number) => ({
  id,
  displayName: id,
  int: `0x${hexDigits(seed)}`,
  intResolution: 1024,
});

test('frames', async ({ open, sandbox }) => {
  const program = await open([
    sandbox.write('wide.words.tessary', documentText(wideSheet('one', 1), wideSheet('two', 2))),
  ]);
  await until('the sheet', async () => (await appearance(program)).includes(hexDigits(1).toUpperCase()));
  console.log(`From one frame to the next at 1024 bits with all rows, ${tries} tries of each action, in milliseconds.`);
  console.log('| | median of all frames | least, median and most of the longest in a try | aim |');
  console.log('| --- | --- | --- | --- |');
  await measure(program, ACTIONS);
  await program.page.evaluate(makeBare);
  await measure(program, BARE_ACTIONS);
});

async function measure(program: Program, actions: Action[]) {
  for (const action of actions.filter(({ name }) => name.includes(chosen))) {
    await prepareWindow(program);
    const all = [];
    for (let round = -1; round < tries; round++) {
      const frames = await framesOf(program, action, round + 1);
      if (round >= 0) all.push(frames); // the first time is another matter
    }
    const longest = all.map((frames) => Math.max(...frames)).sort((a, b) => a - b);
    const figures = [longest[0], median(longest), longest.at(-1)].map((each) => each?.toFixed(0)).join(', ');
    console.log(`| ${action.name} | ${median(all.flat()).toFixed(0)} | ${figures} | ${AIM} |`);
  }
}

async function framesOf(program: Program, { name, ready, isIdle }: Action, round: number): Promise<number[]> {
  const act = await ready(program, round);
  const before = await appearance(program);
  const frames = await framesWhile(program.page, act);
  if (!isIdle) await until(`what is to be seen of "${name}"`, async () => (await appearance(program)) !== before);
  return frames;
}

function median(figures: number[]): number {
  const sorted = figures.toSorted((a, b) => a - b);
  return sorted[sorted.length >> 1] ?? NaN;
}
