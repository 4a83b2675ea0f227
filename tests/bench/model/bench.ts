import { displayFloat } from '../../../web/src/model/float/displayFloat';
import { floatFormatFor } from '../../../web/src/model/float/floatFormats';
import { formatInteger } from '../../../web/src/model/integer/formatInteger';
import { parseInteger } from '../../../web/src/model/integer/parseInteger';
import { readWord, wordCount, writeWord } from '../../../web/src/model/integer/wordLayout';
import { randomWord } from '../../../web/src/model/integer/wordOperations';
import { integerWidths } from '../../../web/src/model/sheet/resolutions';
import { measure, type Task } from './measure';

const BITS = 1024;
const SAMPLES = 64;
const BASES = [2, 10, 16, 62, 64];

// The top bit is set, so that all samples have the same number of digits.
const values = Array.from({ length: SAMPLES }, () => randomWord(BITS) | (1n << BigInt(BITS - 1)));
const valueOf = (round: number) => values[round % SAMPLES]!;

/** Each pair: what is measured, what it is compared with, and how many times slower it may be. */
const LIMITS = [
  { base: 62, engineBase: 36, limit: 5 },
  ...[4, 8, 16, 32, 64].map((base) => ({ base, engineBase: 32, limit: 2 })),
];

report('words of a 1024-bit value', [
  ...integerWidths(BITS).map((width): Task => {
    const last = wordCount(BITS, width) - 1;
    return { name: `read a word of ${width} bits`, run: (round) => Number(readWord(valueOf(round), width, last) & 1n) };
  }),
  ...integerWidths(BITS).map((width): Task => {
    const last = wordCount(BITS, width) - 1;
    const write = (round: number) => writeWord(valueOf(round), width, last, valueOf(round + 1));
    return { name: `write a word of ${width} bits`, run: (round) => Number(write(round) & 1n) };
  }),
]);
report('1024 bits as text', [...BASES.map(formatting), ...BASES.map(parsing)]);
report('floats', [displaying(16), displaying(32), displaying(64), displaying(128), displaying(256)]);
reportRatios();

function formatting(base: number): Task {
  return { name: `format in base ${base}`, run: (round) => formatInteger(valueOf(round), base, BITS).charCodeAt(1) };
}

function parsing(base: number): Task {
  // The two alphabets differ above base 36, and a text that begins with z might not fit in the word.
  const texts = values.map((value) => formatInteger(value >> 8n, base, BITS));
  const parse = (round: number) => parseInteger(texts[round % SAMPLES]!, base, BITS);
  for (let sample = 0; sample < SAMPLES; sample++)
    if (!parse(sample).ok) throw new Error(`Not a number in base ${base}`);
  return { name: `parse in base ${base}`, run: (round) => Number(parse(round).ok) };
}

function displaying(width: number): Task {
  const format = floatFormatFor(width)!;
  const words = values.map((value) => readWord(value, width, 0));
  const run = (round: number) => displayFloat(words[round % SAMPLES]!, format).length;
  return { name: `display a float of ${width} bits`, run };
}

function report(title: string, tasks: readonly Task[]): void {
  console.log(`\n${title}: operations per second`);
  for (const [place, nanoseconds] of measure(tasks).entries()) {
    const perSecond = Math.round(1e9 / nanoseconds).toLocaleString('en');
    console.log(`  ${tasks[place]!.name.padEnd(32)}${perSecond.padStart(14)}`);
  }
}

function reportRatios(): void {
  console.log('\nformatting 1024 bits against the engine’s own toString: times as long');
  for (const { base, engineBase, limit } of LIMITS) {
    const engine: Task = {
      name: 'engine',
      run: (round) => valueOf(round).toString(engineBase).charCodeAt(1),
    };
    const [ours, theirs] = measure([formatting(base), engine]) as [number, number];
    const ratio = ours / theirs;
    const verdict = ratio <= limit ? 'within' : 'OVER';
    console.log(
      `  base ${base} against ${engineBase}`.padEnd(34) + `${ratio.toFixed(2).padStart(8)}  ${verdict} ${limit}`,
    );
  }
}
