import { mkdirSync, symlinkSync } from 'node:fs';
import { join } from 'node:path';
import { complaint, expectRefusals, linkStories, OtherSite } from '../stories/links';
import { expect, test } from '../support/linux/fixtures';

linkStories(test);

test('what is not a link is refused with its reason, and the program goes on', async ({ open, sandbox }) => {
  const program = await open();
  await expectRefusals(program, 'file:///etc/passwd', 'javascript:alert(1)');
  expect(await program.call('readFile', sandbox.write('still here', 'yes'))).toEqual({ success: true, data: 'yes' });
  expect(await program.close()).toBe(0);
});

test('a link that no program opens is refused', async ({ open, sandbox }) => {
  // A system with GTK's own data, but without any program that could open a link.
  const bare = join(sandbox.folder, 'bare');
  mkdirSync(bare);
  symlinkSync('/usr/share/glib-2.0', join(bare, 'glib-2.0'));
  const program = await open([], { env: { XDG_DATA_DIRS: bare } });
  expect(await complaint(program, 'mailto:someone@example.org')).toContain('Failed to open URL in browser');
  expect(await complaint(program, 'http://')).toContain('Failed to open URL in browser');
  expect(await program.call('readFile', sandbox.write('still here', 'yes'))).toEqual({ success: true, data: 'yes' });
});

test("a link for a new window opens in the desktop's own browser, and no window with it", async ({
  open,
  linkRecorder,
}) => {
  const program = await open();
  await program.page.evaluate(() => {
    const link = document.body.appendChild(document.createElement('a'));
    link.href = 'https://example.org/new';
    link.target = '_blank';
    link.click();
  });
  expect(await linkRecorder.opened()).toBe('https://example.org/new');
  expect(program.windows()).toHaveLength(1);
});

test('an address that is dropped on the window is not shown in it, even if the page lets it through', async ({
  open,
  sandbox,
  linkRecorder,
}) => {
  const site = new OtherSite();
  const address = `${await site.start()}/dropped`;
  const program = await open();
  await program.shows('Open Words Tool');
  await program.page.evaluate(() => {
    for (const kind of ['dragenter', 'dragover', 'drop']) {
      addEventListener(kind, (event) => event.stopImmediatePropagation(), true); // the page hears nothing of it
    }
  });
  await program.desktop.drop(address, program.window, { x: 400, y: 500 });
  expect(await linkRecorder.opened()).toBe(address);
  await program.desktop.drop(`file://${sandbox.write('page.html', 'a page')}`, program.window, { x: 400, y: 500 });
  expect(await program.page.evaluate(() => location.origin)).toBe(program.url);
  await program.shows('Open Words Tool');
  expect(site.requests).toEqual([]);
  site.stop();
});
