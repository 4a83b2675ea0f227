import { chmodSync, existsSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { until } from '../support/until';
import { expect, test, type WindowsPlace } from '../support/windowsFixtures';
import type { WindowsProgram } from '../support/windowsProgram';
import type { WinePrefix } from '../support/winePrefix';

/** Makes a script on Linux the user's browser and mail program; it writes down the link that it is given. */
function installLinkRecorder(prefix: WinePrefix, place: WindowsPlace): { opened: () => Promise<string> } {
  const record = join(place.folder, 'opened');
  const lines = ['#!/bin/sh', `printf '%s' "$1" >'${record}.new'`, `mv '${record}.new' '${record}'`, ''];
  const script = place.write('../recorder.sh', lines.join('\n'));
  chmodSync(script, 0o755);
  for (const name of ['Browsers', 'Mailers']) prefix.setValue('HKCU\\Software\\Wine\\WineBrowser', name, script);
  return { opened: () => until('the link to be opened', () => existsSync(record) && readFileSync(record, 'utf8')) };
}

/** The message that the page's promise is rejected with. */
function complaint(program: WindowsProgram, ...given: unknown[]): Promise<string> {
  return program.call('openExternalUrl', ...given).then(
    () => 'no complaint',
    (error: Error) => error.message,
  );
}

for (const url of ['https://example.org/a?b=c&d=%20e#f', 'http://example.org/', 'mailto:someone@example.org']) {
  test(`${new URL(url).protocol} links open in the user's own program`, async ({ open, place, prefix }) => {
    const recorder = installLinkRecorder(prefix, place);
    const program = await open();
    expect(await program.call('openExternalUrl', url)).toBeNull();
    expect(await recorder.opened()).toBe(url);
  });
}

test("a link of the welcome page opens in the user's own program", async ({ open, place, prefix }) => {
  const recorder = installLinkRecorder(prefix, place);
  const program = await open();
  await program.shows('IEEE 754 floating point');
  const address = await program.page.evaluate(() => {
    const links = [...document.querySelectorAll('a')];
    links.find((link) => link.textContent === 'IEEE 754 floating point')?.click();
    return location.href;
  });
  expect(await recorder.opened()).toMatch(/^https:\/\//);
  expect(await program.page.evaluate(() => location.href)).toBe(address);
});

test('what is not a link is refused with its reason, and the program goes on', async ({ open, place }) => {
  const program = await open();
  const protocol = 'Invalid URL protocol. Only http://, https://, and mailto: are allowed';
  expect(await complaint(program)).toContain('Invalid arguments for openExternalUrl');
  expect(await complaint(program, 7)).toContain('URL must be a string');
  expect(await complaint(program, null)).toContain('URL must be a string');
  for (const url of ['', 'file:///C:/windows/notepad.exe', 'HTTPS://example.org', 'notepad.exe', 'page.html', 'é']) {
    expect(await complaint(program, url)).toContain(protocol);
  }
  place.write('still here', 'yes');
  expect(await program.call('readFile', place.windowsPath('still here'))).toEqual({ success: true, data: 'yes' });
  expect(await program.close()).toBe(0);
});

test('a link that no program opens is refused', async ({ open, place, prefix }) => {
  const command = 'HKCR\\mailto\\shell\\open\\command';
  prefix.setValue(command, '', 'C:\\gone.exe "%1"');
  const program = await open();
  expect(await complaint(program, 'mailto:someone@example.org')).toContain('Failed to open URL in browser');
  place.write('still here', 'yes');
  expect(await program.call('readFile', place.windowsPath('still here'))).toEqual({ success: true, data: 'yes' });
  prefix.setValue(command, '', '"C:\\windows\\system32\\winebrowser.exe" "%1"');
});
