import { expect, test } from '../support/browser/fixtures';
import { hostCalls, hostFile, stubNativeHost } from '../support/browser/nativeHost';
import { documentText } from '../support/shared/documents';

const PATH = '/home/me/numbers.words.tessary';
const OTHER = '/home/me/other.tessary';

test.describe('in the native host', () => {
  test('the file of the command line opens as saved', async ({ page, enter, expectAccessible }) => {
    await stubNativeHost(page, {
      args: { filePath: PATH },
      files: { [PATH]: documentText({ displayName: 'Mine' }) },
    });
    await enter();
    await expect(page.getByRole('tab', { name: 'Mine' })).toBeVisible();
    const bar = page.getByRole('toolbar', { name: 'Document' });
    await expect(bar).toContainText('numbers.words.tessary');
    await expect(bar).not.toContainText('*');
    await expect(bar.getByRole('button', { name: 'Save', exact: true })).toBeDisabled();
    await bar.getByText('numbers.words.tessary').hover();
    await expect(page.getByRole('tooltip', { name: PATH })).toBeVisible();
    await page.mouse.move(400, 500);
    await expectAccessible();
  });

  test('a launch error stays on the start page', async ({ page, enter, expectAccessible }) => {
    await stubNativeHost(page, {
      args: { error: 'File not found: ./gone.tessary', filePath: PATH },
    });
    await enter();
    await expect(page.getByRole('alert')).toHaveText('Failed to start Tessary: File not found: ./gone.tessary');
    await expect(page.getByRole('link', { name: 'Open Words Tool' })).toHaveCount(0);
    await expectAccessible();
    expect(await hostCalls(page)).toEqual([]);
  });

  test('a new document asks for its place once and is saved there from then on', async ({ page, enter }) => {
    await stubNativeHost(page, { choices: [PATH] });
    await enter();
    await page.getByRole('link', { name: 'Open Words Tool' }).click();
    await page.getByRole('link', { name: 'Create Document' }).click();
    const bar = page.getByRole('toolbar', { name: 'Document' });
    const save = bar.getByRole('button', { name: 'Save', exact: true });
    await expect(page.getByRole('tab', { name: 'Number A', selected: true })).toBeVisible();
    await expect(bar).toContainText('Untitled.words.tessary*');
    await bar.getByText('Untitled.words.tessary*').hover();
    await expect(page.getByRole('tooltip', { name: 'Unstored Document' })).toBeVisible();
    await save.click();
    await expect(bar).toContainText('numbers.words.tessary');
    await expect(save).toBeDisabled();
    await page.getByRole('button', { name: 'Add sheet' }).click();
    await expect(bar).toContainText('numbers.words.tessary*');
    await save.click();
    await expect(save).toBeDisabled();
    const calls = await hostCalls(page);
    expect(calls.map(([name]) => name)).toEqual(['showSaveDialog', 'writeFile', 'writeFile']);
    expect(calls[0]).toEqual([
      'showSaveDialog',
      'Untitled.words.tessary',
      'Tessary Files',
      '*.words.tessary;*.tessary',
      'words.tessary',
    ]);
    const written = JSON.parse((await hostFile(page, PATH))!);
    expect(written.sheets.map(({ displayName }: { displayName: string }) => displayName)).toEqual([
      'Number A',
      'Number B',
    ]);
  });

  test('Save As asks for another place', async ({ page, enter }) => {
    const files = { [PATH]: documentText({}) };
    await stubNativeHost(page, {
      args: { filePath: PATH },
      files,
      choices: [OTHER],
    });
    await enter();
    const bar = page.getByRole('toolbar', { name: 'Document' });
    await bar.getByRole('button', { name: 'Save As' }).click();
    await expect(bar).toContainText('other.tessary');
    const [, dialog, write] = await hostCalls(page);
    expect(dialog).toEqual([
      'showSaveDialog',
      'numbers.words.tessary',
      'Tessary Files',
      '*.words.tessary;*.tessary',
      'words.tessary',
    ]);
    expect(write!.slice(0, 2)).toEqual(['writeFile', OTHER]);
  });

  test('bits beyond the width of a sheet go with its first edit, and stay in sheets without one', async ({
    page,
    enter,
  }) => {
    const wide = { int: '0x1ff', intResolution: 8 };
    const sheets = documentText(
      { id: 'a', displayName: 'First', ...wide },
      { id: 'b', displayName: 'Second', ...wide },
    );
    await stubNativeHost(page, { args: { filePath: PATH }, files: { [PATH]: sheets } });
    await enter();
    await page.getByRole('tab', { name: 'First' }).dblclick();
    await page.keyboard.type('Mine');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Control+s');
    await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
    const written = JSON.parse((await hostFile(page, PATH))!) as { sheets: { displayName: string; int: string }[] };
    expect(written.sheets.map(({ displayName, int }) => [displayName, int])).toEqual([
      ['Mine', '0xff'],
      ['Second', '0x1ff'],
    ]);
  });

  for (const [what, host] of [
    ['a cancelled save dialog', { choices: [null] }],
    ['a place that cannot be written', { choices: [PATH], readOnly: [PATH] }],
  ] as const) {
    test(`${what} says nothing, clears the mark and keeps the file`, async ({ page, enter }) => {
      await stubNativeHost(page, {
        choices: [...host.choices],
        readOnly: [...('readOnly' in host ? host.readOnly : [])],
      });
      await enter();
      await page.keyboard.press('Control+n');
      const bar = page.getByRole('toolbar', { name: 'Document' });
      await bar.getByRole('button', { name: 'Save', exact: true }).click();
      await expect(bar.getByRole('button', { name: 'Save', exact: true })).toBeDisabled();
      await expect(bar).toContainText('Untitled.words.tessary');
      await expect(page.getByRole('alert')).toHaveCount(0);
    });
  }

  test('opening asks with the file type, reads the choice and shows it', async ({ page, enter }) => {
    await stubNativeHost(page, {
      choices: [PATH],
      files: { [PATH]: documentText({ displayName: 'Opened' }) },
    });
    await enter();
    await page.keyboard.press('Control+o');
    await expect(page.getByRole('tab', { name: 'Opened' })).toBeVisible();
    expect(await hostCalls(page)).toEqual([
      ['showOpenDialog', 'Tessary Files', '*.words.tessary;*.tessary'],
      ['readFile', PATH],
    ]);
    await expect(
      page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Save', exact: true }),
    ).toBeDisabled();
  });

  test('a cancelled open dialog changes nothing and says nothing', async ({ page, enter }) => {
    await stubNativeHost(page, {
      args: { filePath: PATH },
      files: { [PATH]: documentText({}) },
      choices: [null],
    });
    await enter();
    await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Open' }).click();
    await expect.poll(async () => (await hostCalls(page)).map(([name]) => name)).toContain('showOpenDialog');
    await expect(page.getByRole('tab', { name: 'Number A' })).toBeVisible();
    await expect(page.getByRole('alert')).toHaveCount(0);
  });

  for (const [what, files, message] of [
    ['a file that cannot be read', {}, 'An error occurred while opening the file'],
    ['an empty file', { [OTHER]: '' }, 'Failed to parse document data: Invalid JSON'],
    ['another kind of JSON', { [OTHER]: '{"a":1}' }, 'Invalid Tessary document data structure'],
  ] as const) {
    test(`opening ${what} is reported and leaves the document alone`, async ({ page, enter, expectAccessible }) => {
      await stubNativeHost(page, {
        args: { filePath: PATH },
        files: { [PATH]: documentText({ displayName: 'Mine' }), ...files },
        choices: [OTHER],
      });
      await enter();
      await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Open' }).click();
      await expect(page.getByRole('alert')).toHaveText(message);
      await expect(page.getByRole('tab', { name: 'Mine' })).toBeVisible();
      await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary');
      await expectAccessible();
    });
  }

  test('without its file functions, opening and saving are reported as failed', async ({ page, enter }) => {
    await stubNativeHost(page, { missing: ['readFile', 'writeFile'] });
    await enter();
    await page.keyboard.press('Control+n');
    await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Save', exact: true }).click();
    await expect(page.getByText('An error occurred while saving the file')).toBeVisible();
    await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Open' }).click();
    await page.getByRole('button', { name: 'Discard' }).click();
    await expect(page.getByText('An error occurred while opening the file')).toBeVisible();
    await expect(page.getByRole('tab', { name: 'Number A' })).toBeVisible();
  });
});

test.describe('unsaved changes', () => {
  test.beforeEach(async ({ page, enter }) => {
    await stubNativeHost(page, {
      choices: [PATH],
      files: { [PATH]: documentText({ displayName: 'Opened' }) },
    });
    await enter();
    await page.keyboard.press('Control+n');
    await page.getByRole('button', { name: 'Add sheet' }).click();
  });

  for (const [action, outcome] of [
    ['New', ['Number A']],
    ['Open', ['Opened']],
    ['Close', []],
  ] as const) {
    test(`${action} asks first and goes on only after Discard`, async ({ page, expectAccessible }) => {
      const button = page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: action });
      const dialog = page.getByRole('alertdialog', { name: 'Unsaved Changes' });
      const tabs = page.getByRole('tab');

      await button.click();
      await expect(dialog).toContainText('You have unsaved changes. Do you want to discard them?');
      await expectAccessible();
      await dialog.getByRole('button', { name: 'Cancel' }).click();
      await expect(dialog).toHaveCount(0);
      await button.click();
      await page.keyboard.press('Escape');
      await expect(dialog).toHaveCount(0);
      await expect(tabs).toHaveText(['Number A', 'Number B']);

      await button.click();
      await dialog.getByRole('button', { name: 'Discard' }).click();
      await expect(tabs).toHaveText([...outcome]);
      await expect.poll(() => page.evaluate(() => document.activeElement?.tagName)).not.toBe('BODY');
      await expect(page.getByRole('toolbar', { name: 'Document' })).toHaveCount(action === 'Close' ? 0 : 1);
    });
  }

  test('the keyboard does what the buttons do', async ({ page }) => {
    const dialog = page.getByRole('alertdialog');
    const tooltip = page.getByRole('tooltip');
    await page.getByRole('toolbar', { name: 'Document' }).getByRole('button', { name: 'Save As' }).hover();
    await expect(tooltip).toHaveText('Save As (Ctrl+Shift+S)');
    await page.keyboard.press('Control+s');
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary');
    await page.keyboard.press('Control+w');
    await expect(page.getByRole('heading', { name: 'Welcome to Words tool!' })).toBeVisible();
    await page.keyboard.press('Control+n');
    await expect(page.getByRole('tab')).toHaveText(['Number A']);
    await page.keyboard.press('Control+w');
    await expect(dialog).toBeVisible();
    await page.keyboard.press('Control+n'); // not while the question is open
    await dialog.getByRole('button', { name: 'Discard' }).click();
    await expect(page.getByRole('tab')).toHaveCount(0);
    await page.keyboard.press('Control+n');
    await page.keyboard.press('Control+Shift+s');
    await expect.poll(async () => (await hostCalls(page)).filter(([name]) => name === 'showSaveDialog').length).toBe(2);
  });
});

test('in a browser the keys of its own tabs are left to it', async ({ page, enter }) => {
  await enter();
  await page.getByRole('link', { name: 'Open Words Tool' }).click();
  await page.getByRole('link', { name: 'Create Document' }).click();
  const bar = page.getByRole('toolbar', { name: 'Document' });
  await bar.getByRole('button', { name: 'Open' }).hover();
  await expect(page.getByRole('tooltip')).toHaveText('Open (Ctrl+O)');
  await bar.getByRole('button', { name: 'New' }).hover();
  await expect(page.getByRole('tooltip')).toHaveCount(0);
  await page.keyboard.press('Control+n');
  await page.keyboard.press('Control+w');
  await expect(page.getByRole('alertdialog')).toHaveCount(0);
});
