import { linkStories } from '../stories/links';
import { expect, test } from '../support/windowsFixtures';
import type { WindowsProgram } from '../support/windowsProgram';

/** The message that the page's promise is rejected with. */
function complaint(program: WindowsProgram, ...given: unknown[]): Promise<string> {
  return program.call('openExternalUrl', ...given).then(
    () => 'no complaint',
    (error: Error) => error.message,
  );
}

linkStories(test);

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
