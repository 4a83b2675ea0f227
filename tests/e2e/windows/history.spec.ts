import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';
import { expect, test } from '../support/windows/fixtures';

test.setTimeout(120_000);

test('the keys undo and redo what was entered, and typing in a text that is being typed', async ({ open, sandbox }) => {
  sandbox.write('mine.words.tessary', documentText({ int: '0x5' }));
  const program = await open(['mine.words.tessary']);
  const { page } = program;
  const shows = (text: string) =>
    until(`the value ${text}`, () =>
      page.evaluate(
        (wanted) => document.querySelector<HTMLInputElement>('input[aria-label="Value"]')?.value === wanted,
        text,
      ),
    );
  await shows('5');
  await page.evaluate(() => {
    const field = document.querySelector<HTMLInputElement>('input[aria-label="Value"]')!;
    field.focus();
    field.select();
  });
  await page.type('77');
  await page.press('Enter');
  await program.shows('mine.words.tessary*');
  await page.press('End');
  await page.type('8');
  await shows('778');
  await page.press('z', 'ctrl');
  await shows('77');
  await page.press('z', 'ctrl');
  await shows('5');
  await until('the mark to go', async () => !(await program.text()).includes('mine.words.tessary*'));
  await page.press('Z', 'ctrl', 'shift');
  await shows('77');
  await program.shows('mine.words.tessary*');
  expect(program.windows()).toHaveLength(1);
});
