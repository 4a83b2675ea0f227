import { existsSync, mkdirSync, readdirSync, readFileSync, statSync } from 'node:fs';
import { join } from 'node:path';
import { copyOf, expectWholeAfterKills, savedLengths } from '../stories/cutOffSaves';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';
import { expect, test } from '../support/windows/fixtures';
import { noNotice, noticeSays } from '../support/windows/notice';
import type { WinePrefix } from '../support/windows/winePrefix';

/** Of the only user that has one. */
function rescueFolder({ driveC }: WinePrefix): string {
  const users = readdirSync(join(driveC, 'users')).map((name) => join(driveC, 'users', name, 'AppData/Local/Tessary'));
  return users.find((folder) => existsSync(folder)) ?? '';
}

for (const length of savedLengths) {
  test(`a program that is killed while it saves ${length} bytes leaves a document that opens whole`, async ({
    open,
    sandbox,
  }) => {
    const seen = sandbox.write('mine.words.tessary', 'a'.repeat(length));
    await expectWholeAfterKills(open, { file: sandbox.windowsPath('mine.words.tessary'), seen, length, kills: 1 });
  });
}

test('a save that was cut off is finished when the document is opened', async ({ open, sandbox }) => {
  const text = documentText({ int: '0xff' }).replaceAll('\n', '\r\n');
  const seen = sandbox.write('mine.words.tessary', text.slice(0, 100));
  sandbox.write('mine.words.tessary.new-text', text);
  const program = await open([sandbox.windowsPath('mine.words.tessary')]);
  await until('the value', () =>
    program.page.evaluate(() => document.querySelector<HTMLInputElement>('input[aria-label="Value"]')?.value === '255'),
  );
  expect(readFileSync(seen, 'utf8')).toBe(text);
  expect(readdirSync(sandbox.documents)).toEqual(['mine.words.tessary']);
});

test('a text that was never written is moved aside by the next save', async ({ open, sandbox }) => {
  const seen = sandbox.write('mine.words.tessary', 'old');
  sandbox.write('mine.words.tessary.new-text', 'another');
  const program = await open();
  const answer = await program.call('writeFile', sandbox.windowsPath('mine.words.tessary'), 'new');
  expect(answer).toEqual({ success: true });
  expect(readFileSync(`${copyOf(seen)}.1`, 'utf8')).toBe('another');
  expect(readdirSync(sandbox.documents)).toEqual(['mine.words.tessary', 'mine.words.tessary.new-text.1']);
});

test('a text that could not be saved is in the rescue folder, and a notice says so until it is', async ({
  open,
  sandbox,
  prefix,
}) => {
  const program = await open();
  const file = sandbox.windowsPath('gone\\rescued.words.tessary');
  const refused = { success: false, error: 'file-write-failed' };
  expect(await program.call('writeFile', file, 'text')).toEqual(refused);
  const name = 'rescued (not saved).words.tessary';
  await noticeSays(program, '“rescued.words.tessary” could not be saved', file, `AppData\\Local\\Tessary\\${name}`);
  const rescued = join(rescueFolder(prefix), name);
  expect(readFileSync(rescued, 'utf8')).toBe('text');
  expect(statSync(rescueFolder(prefix)).mode & 0o7).toBe(0);
  mkdirSync(join(sandbox.documents, 'gone'));
  expect(await program.call('writeFile', file, 'text')).toEqual({ success: true });
  await noNotice(program);
  expect(existsSync(rescued)).toBe(false);
  expect(await program.close()).toBe(0);
});

test('a notice waits for nothing: the page goes on, and Escape closes it', async ({ open, sandbox }) => {
  const program = await open();
  await program.call('writeFile', sandbox.windowsPath('gone\\mine.words.tessary'), 'text');
  const notice = await noticeSays(program, '“mine.words.tessary” could not be saved');
  const file = sandbox.windowsPath('other.words.tessary');
  expect(await program.call('writeFile', file, 'text')).toEqual({ success: true });
  program.desktop.click(notice, { x: 20, y: 60 });
  program.desktop.press('Escape');
  await noNotice(program);
  expect(await program.close()).toBe(0);
});

test('what another program wrote into a document is kept beside it', async ({ open, sandbox }) => {
  const seen = sandbox.write('mine.words.tessary', 'as opened');
  const file = sandbox.windowsPath('mine.words.tessary');
  const program = await open();
  expect(await program.call('readFile', file)).toEqual({ success: true, data: 'as opened' });
  sandbox.write('mine.words.tessary', 'of another program');
  expect(await program.call('writeFile', file, 'mine')).toEqual({ success: true });
  expect(readFileSync(seen, 'utf8')).toBe('mine');
  expect(readFileSync(`${seen}.before-save`, 'utf8')).toBe('of another program');
  await noticeSays(program, '“mine.words.tessary” was changed by another program', `${file}.before-save`);
});
