import { existsSync, mkdirSync, readFileSync, symlinkSync } from 'node:fs';
import { join } from 'node:path';
import { expect, test, type Place } from '../support/hostFixtures';
import type { Program } from '../support/program';
import { until } from '../support/until';

/** Makes a program the desktop's handler of links; it writes down the link that it is given. */
function installLinkRecorder(place: Place): { opened: () => Promise<string> } {
  const record = join(place.folder, 'opened');
  const script = place.write(
    '../home/recorder.sh',
    `#!/bin/sh\nprintf '%s' "$1" >'${record}.new'\nmv '${record}.new' '${record}'\n`,
  );
  const schemes = ['http', 'https', 'mailto'].map((scheme) => `x-scheme-handler/${scheme}`);
  place.write(
    '../home/data/applications/recorder.desktop',
    `[Desktop Entry]\nType=Application\nName=Recorder\nExec=/bin/sh ${script} %u\nMimeType=${schemes.join(';')};\n`,
  );
  place.write(
    '../home/config/mimeapps.list',
    `[Default Applications]\n${schemes.map((type) => `${type}=recorder.desktop\n`).join('')}`,
  );
  return { opened: () => until('the link to be opened', () => existsSync(record) && readFileSync(record, 'utf8')) };
}

/** The message that the page's promise is rejected with. */
function complaint(program: Program, ...given: unknown[]): Promise<string> {
  return program.call('openExternalUrl', ...given).then(
    () => 'no complaint',
    (error: Error) => error.message,
  );
}

for (const url of ['https://example.org/a?b=c&d=%20e#f', 'http://example.org/', 'mailto:someone@example.org']) {
  test(`${new URL(url).protocol} links open in the desktop's own program`, async ({ open, place }) => {
    const recorder = installLinkRecorder(place);
    const program = await open();
    expect(await program.call('openExternalUrl', url)).toBeNull();
    expect(await recorder.opened()).toBe(url);
  });
}

test("a link of the welcome page opens in the desktop's own program", async ({ open, place }) => {
  const recorder = installLinkRecorder(place);
  const program = await open();
  await program.shows('IEEE 754 floating point');
  const url = await program.page.evaluate(() => {
    const links = [...document.querySelectorAll('a')];
    links.find((link) => link.textContent === 'IEEE 754 floating point')?.click();
    return location.href;
  });
  expect(await recorder.opened()).toMatch(/^https:\/\//);
  expect(await program.page.evaluate(() => location.href)).toBe(url);
});

test('what is not a link is refused with its reason, and the program goes on', async ({ open, place }) => {
  const program = await open();
  const protocol = 'Invalid URL protocol. Only http://, https://, and mailto: are allowed';
  expect(await complaint(program)).toContain('Invalid arguments for openExternalUrl');
  expect(await complaint(program, 7)).toContain('URL must be a string');
  expect(await complaint(program, null)).toContain('URL must be a string');
  for (const url of ['', 'file:///etc/passwd', 'HTTPS://example.org', 'javascript:alert(1)', 'page.html', 'é']) {
    expect(await complaint(program, url)).toContain(protocol);
  }
  expect(await program.call('readFile', place.write('still here', 'yes'))).toEqual({ success: true, data: 'yes' });
  expect(await program.close()).toBe(0);
});

test('a link that no program opens is refused', async ({ open, place }) => {
  // A system with GTK's own data, but without any program that could open a link.
  const bare = join(place.folder, 'bare');
  mkdirSync(bare);
  symlinkSync('/usr/share/glib-2.0', join(bare, 'glib-2.0'));
  const program = await open([], { env: { XDG_DATA_DIRS: bare } });
  expect(await complaint(program, 'mailto:someone@example.org')).toContain('Failed to open URL in browser');
  expect(await complaint(program, 'http://')).toContain('Failed to open URL in browser');
  expect(await program.call('readFile', place.write('still here', 'yes'))).toEqual({ success: true, data: 'yes' });
});
