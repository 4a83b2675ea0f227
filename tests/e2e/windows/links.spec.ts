import { complaint, expectRefusals, linkStories } from '../stories/links';
import { expect, test } from '../support/windows/fixtures';

linkStories(test);

test('what is not a link is refused with its reason, and the program goes on', async ({ open, sandbox }) => {
  const program = await open();
  await expectRefusals(program, 'file:///C:/windows/notepad.exe', 'notepad.exe');
  sandbox.write('still here', 'yes');
  expect(await program.call('readFile', sandbox.windowsPath('still here'))).toEqual({ success: true, data: 'yes' });
  expect(await program.close()).toBe(0);
});

test('a link that no program opens is refused', async ({ open, sandbox, prefix }) => {
  const command = 'HKCR\\mailto\\shell\\open\\command';
  prefix.setValue(command, '', 'C:\\gone.exe "%1"');
  const program = await open();
  expect(await complaint(program, 'mailto:someone@example.org')).toContain('Failed to open URL in browser');
  sandbox.write('still here', 'yes');
  expect(await program.call('readFile', sandbox.windowsPath('still here'))).toEqual({ success: true, data: 'yes' });
  prefix.setValue(command, '', '"C:\\windows\\system32\\winebrowser.exe" "%1"');
});
