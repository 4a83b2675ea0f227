import { mkdirSync, statSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { expect, test } from '../../e2e/support/linux/fixtures';
import { Chance } from '../../e2e/support/shared/chance';
import { documentText } from '../../e2e/support/shared/documents';
import { type Sample, sampleOf, tableOf, verdictOn } from './figures';
import { User } from './user';

const minutes = Number(process.env.TESSARY_SOAK_MINUTES ?? 30);
const results = fileURLToPath(new URL('../../../build/bench/soak.json', import.meta.url));
const SAMPLE_EVERY = 10_000;
const LARGEST_GROWTH = 0.1;
const SEED = 1;

/** What one round of work consists of: one save, and a real dialog in some of them. */
const IN_A_ROUND = { type: 4, flipBit: 4, paintBits: 1, invertWord: 2, switchTab: 3, scroll: 2 } as const;
const ROUNDS_PER_REOPENING = 4;
const ROUNDS_PER_RENAMING = 3;
const ROUNDS_PER_DIALOG = 12;

const operations: Record<string, number> = {};
const percent = (part: number) => `${(part * 100).toFixed(1)}%`;
const done = () => Object.values(operations).reduce((sum, each) => sum + each, 0);

type Work = Exclude<
  { [K in keyof User]: User[K] extends (...given: never[]) => Promise<unknown> ? K : never }[keyof User],
  'begin' | 'startOver'
>;

test('memory stays where it is while somebody works for long', async ({ open, sandbox }) => {
  const two = { id: 'two', displayName: 'Number B', int: '0xff', intResolution: 256 };
  const text = documentText({ int: '0x5' }, two);
  const mine = sandbox.write('mine.words.tessary', text);
  const other = join(sandbox.documents, 'other.words.tessary');
  const program = await open([mine]);
  const user = new User(program, new Chance(SEED), mine);
  await user.begin();

  const begin = performance.now();
  const seconds = () => (performance.now() - begin) / 1000;
  const samples: Sample[] = [];
  const sampling = setInterval(() => samples.push(sampleOf(program.process.pid, seconds(), done())), SAMPLE_EVERY);
  const count = async (work: Work, ...given: string[]) => {
    await (user[work] as (...all: string[]) => Promise<unknown>).call(user, ...given);
    operations[work] = (operations[work] ?? 0) + 1;
  };
  try {
    for (let round = 1; seconds() < minutes * 60; round++) {
      for (const [work, times] of Object.entries(IN_A_ROUND) as [keyof typeof IN_A_ROUND, number][]) {
        for (let time = 0; time < times; time++) await count(work);
      }
      await count('save', mine);
      if (round % ROUNDS_PER_RENAMING === 0) {
        await count('renameSheet');
        await count('changeResolution');
        await count(round % 2 === 0 ? 'addSheet' : 'closeSheet');
      }
      if (round % ROUNDS_PER_REOPENING === 0) await count('reopen', mine);
      if (round % ROUNDS_PER_DIALOG === 0) {
        await count('saveAs', other);
        await count('type');
        await count('save', other);
        await count('open', mine);
        // The memory of documents of the same size is compared.
        await user.startOver(text, new Chance(SEED));
      }
    }
  } finally {
    clearInterval(sampling);
    const verdict = verdictOn(samples);
    const logBytes = statSync(sandbox.logFile).size;
    mkdirSync(dirname(results), { recursive: true });
    writeFileSync(results, JSON.stringify({ minutes, seed: SEED, operations, verdict, logBytes, samples }, null, 2));
    console.log(`${tableOf(samples)}\n  operations: ${JSON.stringify(operations)}\n  debug.log: ${logBytes} bytes`);
    console.log(
      `  memory at ${verdict.mark.toFixed(0)} s ${verdict.atMark.toFixed(1)} MB, at the end ${verdict.atEnd.toFixed(1)} MB: ` +
        `${percent(verdict.growth)} more, ${percent(LARGEST_GROWTH)} allowed; ` +
        `of what is the program's alone ${percent(verdict.growthAlone)}`,
    );
  }
  expect(verdictOn(samples).growth).toBeLessThanOrEqual(LARGEST_GROWTH);
  expect(await program.close()).toBe(0);
});
