import { chmodSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { copyOf } from '../stories/cutOffSaves';
import { expect, test } from '../support/linux/fixtures';
import { barShows, enterValue, savedValues, shown } from '../support/linux/nativeDocument';
import { noticeSays } from '../support/linux/notice';
import { asOrdinaryUser } from '../support/linux/ordinaryUser';
import type { Program } from '../support/linux/program';
import { untilReloaded } from '../support/linux/reload';
import { documentText } from '../support/shared/documents';
import { tools } from '../support/shared/paths';

const NAME = 'mine.words.tessary';
const HOUR = 3600;

async function edit(program: Program, value: string) {
  await enterValue(program, value);
  await barShows(program, `${NAME}*`);
}

async function save(program: Program) {
  program.desktop.focus(program.window);
  program.desktop.press('ctrl+s');
  await barShows(program, NAME);
}

test('a read-only document is edited and stays as it is on disk', async ({ open, sandbox }) => {
  const text = documentText({ int: '0x5' });
  const file = sandbox.write(NAME, text);
  chmodSync(file, 0o444);
  const program = await open([file], { command: asOrdinaryUser(sandbox.program) });
  await edit(program, '6');
  await save(program);
  expect(await program.call('writeFile', file, 'x')).toEqual({ success: false, error: 'file-write-failed' });
  expect(readFileSync(file, 'utf8')).toBe(text);
  await noticeSays(program, `“${NAME}” could not be saved`, 'Permission denied', copyOf(file));
  expect(readFileSync(copyOf(file), 'utf8')).toBe('x');
  expect(readdirSync(sandbox.documents)).toEqual([NAME, `${NAME}.new-text`]);
  await shown(program, '6');
  expect(await program.close()).toBe(0);
});

test('a document that was removed while it is open is whole again after a save', async ({ open, sandbox }) => {
  const file = sandbox.write(NAME, documentText({ int: '0x5' }));
  const program = await open([file]);
  await edit(program, '6');
  rmSync(file);
  await save(program);
  expect(savedValues(file)).toEqual(['0x6']);
  expect(readdirSync(sandbox.documents)).toEqual([NAME]);
  expect(await program.close()).toBe(0);
});

test('a document whose folder was removed stays on screen, and its text is kept elsewhere', async ({
  open,
  sandbox,
}) => {
  const file = sandbox.write(`folder/${NAME}`, documentText({ int: '0x5' }));
  const program = await open([file]);
  await edit(program, '6');
  rmSync(join(sandbox.documents, 'folder'), { recursive: true });
  const kept = join(sandbox.home, '.local/state/tessary/mine (not saved).words.tessary');
  await save(program);
  await noticeSays(program, `“${NAME}” could not be saved`, 'No such file or directory', file, kept);
  expect(savedValues(kept)).toEqual(['0x6']);
  await edit(program, '7');
  await save(program);
  expect(savedValues(kept)).toEqual(['0x7']);
  expect(await program.close()).toBe(0);
});

test('of two programs with one document the one that saves last is right', async ({ open, sandbox }) => {
  const file = sandbox.write(NAME, documentText({ int: '0x5' }, { id: 'two', displayName: 'Number B', int: '0x5' }));
  const first = await open([file]);
  const second = await open([file]);
  await edit(first, '18446744073709551615');
  await edit(second, '7');
  await save(first);
  expect(savedValues(file)).toEqual(['0xffffffffffffffff', '0x5']);
  await save(second);
  expect(savedValues(file)).toEqual(['0x7', '0x5']);
  await edit(first, '8');
  await save(first);
  expect(savedValues(file)).toEqual(['0x8', '0x5']);
  expect([await first.close(), await second.close()]).toEqual([0, 0]);
});

test('two programs that save at the same moment leave one of both texts', async ({ open, sandbox }) => {
  const file = sandbox.write(NAME, 'old');
  const letters = ['a', 'b'];
  const lengths = [300_000, 100_000];
  const texts = letters.map((letter, at) => letter.repeat(lengths[at] ?? 0));
  const programs = [await open(), await open()];
  const write = (path: string, letter: string, length: number) =>
    (window as unknown as { writeFile: (...given: string[]) => Promise<unknown> }).writeFile(
      path,
      letter.repeat(length),
    );
  const seen = new Map<string, number>();
  for (let round = 0; round < 50; round++) {
    await Promise.all(programs.map(({ page }, at) => page.evaluate(write, file, letters[at] ?? '', lengths[at] ?? 0)));
    const text = readFileSync(file, 'utf8');
    const kind = texts.includes(text) ? 'whole' : `${text.length} ${[...new Set(text)].join('')}`;
    seen.set(kind, (seen.get(kind) ?? 0) + 1);
  }
  expect(Object.fromEntries(seen)).toEqual({ whole: 50 });
});

test('a document is edited, saved and loaded again while the clock jumps', async ({ open, sandbox }) => {
  const clock = join(sandbox.folder, 'clock');
  const setClock = (hours: number) => writeFileSync(clock, new BigInt64Array([BigInt(hours * HOUR)]), { flag: 'r+' });
  writeFileSync(clock, new BigInt64Array(1));
  const file = sandbox.write(NAME, documentText({ int: '0x5' }));
  const env = { LD_PRELOAD: `${tools}/fake_clock.so`, FAKE_CLOCK: clock };
  const program = await open([file], { env });
  let value = 5;
  for (const hours of [5, -7, 24 * 400, -24 * 400, 0]) {
    setClock(hours);
    const seen = await program.page.evaluate(() => Date.now());
    expect(Math.abs(seen - Date.now() - hours * HOUR * 1000)).toBeLessThan((HOUR * 1000) / 2);
    await edit(program, `${++value}`);
    await save(program);
    expect(savedValues(file)).toEqual([`0x${value.toString(16)}`]);
    setClock(-hours);
    await untilReloaded(program, () => program.desktop.press('F5'));
    await shown(program, `${value}`);
  }
  expect(await program.close()).toBe(0);
});
