import { expect, test } from '../support/browser/fixtures';
import { hostFile, stubNativeHost } from '../support/browser/nativeHost';
import { documentText, sheet } from '../support/shared/documents';

const PATH = '/home/me/mine.words.tessary';
const BAD = '/home/me/bad.tessary';
const mine = documentText({ displayName: 'Mine' });
const whole = (...sheets: unknown[]) => JSON.stringify({ tool: 'words', version: 1, sheets });

const NOT_RECOGNIZED = 'The provided document is not of a recognized format';
const NOT_OPENED = 'An error occurred while opening the file';

for (const [what, text, message] of [
  ['sheets that are no list', '{"tool":"words","version":1,"sheets":{"length":1e9}}', NOT_RECOGNIZED],
  ['a sheet that is null', whole(null), NOT_RECOGNIZED],
  ['a width that is too large', whole({ ...sheet(), intResolution: 1e308 }), NOT_RECOGNIZED],
  ['an endless number', whole(sheet()).replace('"0xff"', '1e999'), NOT_RECOGNIZED],
  ['an integer that is no number', whole({ ...sheet(), int: '0xZZ' }), NOT_OPENED],
  ['an integer that is a script', whole({ ...sheet(), int: '<img src=x onerror=alert(1)>' }), NOT_OPENED],
  ['a hidden sign that is no boolean', whole(sheet()).replace('{}', '{"__proto__":{"x":1}}'), NOT_RECOGNIZED],
] as const) {
  test(`${what}: a clear message, and the open document stays`, async ({ page, enter }) => {
    await stubNativeHost(page, {
      args: { filePath: PATH },
      files: { [PATH]: mine, [BAD]: text },
      choices: [BAD],
    });
    await enter();
    await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Open' }).click();
    await expect(page.getByRole('alert')).toHaveText(message);
    await expect(page.getByRole('tab')).toHaveText(['Mine']);
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect(page.getByRole('tab')).toHaveText(['Mine', 'Number A']);
  });
}

for (const [what, text] of [
  ['keys named __proto__', whole(sheet()).replace('"tool"', '"__proto__":{"polluted":1},"tool"')],
  [
    'deep nesting in unknown keys',
    whole(sheet()).replace('"tool"', `"x":${'['.repeat(5000)}${']'.repeat(5000)},"tool"`),
  ],
] as const) {
  test(`${what} do no harm`, async ({ page, enter }) => {
    await stubNativeHost(page, {
      args: { filePath: PATH },
      files: { [PATH]: text },
    });
    await enter();
    await expect(page.getByRole('tab')).toHaveText(['Number A']);
    expect(await page.evaluate(() => 'polluted' in {})).toBe(false);
  });
}

test('names with scripts, lone surrogates and control characters are shown and saved as they are', async ({
  page,
  enter,
}) => {
  const names = [
    '<script>alert(1)</script>',
    'half \ud800 pair',
    'del \u007f nul \u0000 end',
    '\u202Eright to left',
    '',
  ];
  const text = documentText(...names.map((displayName, at) => ({ id: `${at}`, displayName })));
  await stubNativeHost(page, {
    args: { filePath: PATH },
    files: { [PATH]: text },
  });
  await enter();
  await expect(page.getByRole('tab')).toHaveCount(names.length);
  await expect(page.getByRole('tab', { name: '<script>alert(1)</script>' })).toBeVisible();
  await page.getByRole('button', { name: 'Add sheet' }).click();
  await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Save', exact: true }).click();
  await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
  const saved = (await hostFile(page, PATH))!;
  expect(saved).toContain('del \\u007f nul \\u0000 end');
  const read = JSON.parse(saved).sheets.map(({ displayName }: { displayName: string }) => displayName);
  expect(read).toEqual([...names, 'Number A']);
});

test('two sheets with one identifier are both kept', async ({ page, enter }) => {
  const text = documentText({ id: 'same', displayName: 'First' }, { id: 'same', displayName: 'Second' });
  await stubNativeHost(page, {
    args: { filePath: PATH },
    files: { [PATH]: text },
  });
  await enter();
  await page.getByRole('tab', { name: 'Second' }).click();
  await expect(page.getByRole('tab')).toHaveText(['First', 'Second']);
  await expect(page.getByRole('tab', { selected: true })).toHaveText('Second');
});

test('a million sheets open with progress on a page that stays alive', async ({ page, enter, expectAccessible }) => {
  test.setTimeout(120_000);
  await stubNativeHost(page, {
    args: { filePath: PATH },
    files: { [PATH]: mine },
    choices: [BAD],
  });
  await enter();
  await expect(page.getByRole('tab')).toHaveText(['Mine']);
  await page.evaluate((path) => {
    const sheet = (at: number) =>
      `{"id":"${at}","displayName":"Sheet ${at}","int":"0x${at.toString(16)}","intResolution":64,"numberDefinitions":[]}`;
    const sheets = Array.from({ length: 1_000_000 }, (_, at) => sheet(at));
    const text = `{"tool":"words","version":1,"sheets":[${sheets.join()}]}`;
    const readFile = async (asked: string) => ({
      success: true,
      data: asked === path ? text : '',
    });
    Object.assign(window, { readFile });
  }, BAD);
  await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Open' }).click();
  await expect(page.getByRole('progressbar', { name: 'Reading the document…' })).toBeVisible({ timeout: 60_000 });
  await expect(page.getByRole('tab', { name: 'Sheet 0', exact: true })).toBeVisible({ timeout: 60_000 });
  await expect(page.getByRole('progressbar')).toHaveCount(0);
  await page.getByRole('tab', { name: 'Sheet 0', exact: true }).focus();
  await page.keyboard.press('End');
  await expect(page.getByRole('tab', { name: 'Sheet 999999' })).toBeInViewport({
    ratio: 1,
  });
  await expectAccessible();
});
