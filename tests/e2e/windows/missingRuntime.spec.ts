import { copyFileSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { until } from '../support/shared/until';
import { expect, test, type WindowsSandbox } from '../support/windows/fixtures';
import { fakeWebView2Dll } from '../support/windows/paths';
import { readWindows } from '../support/windows/windowReader';

const advice =
  'Tessary needs the Microsoft Edge WebView2 Runtime, which is not installed here: get it from ' +
  'https://developer.microsoft.com/microsoft-edge/webview2/ and start Tessary again.';

const version = '120.0.2210.91';

interface Machine {
  sandbox: WindowsSandbox;
  register: (version: string, root: 'HKLM' | 'HKCU') => void;
  install: (version: string) => void;
}

for (const { title, arrange } of [
  { title: 'without a browser runtime', arrange: () => {} },
  {
    title: 'with a runtime that was removed by halves',
    arrange: ({ register }: Machine) => register(version, 'HKLM'),
  },
  {
    title: "with a user's runtime that was removed by halves",
    arrange: ({ register }: Machine) => register(version, 'HKCU'),
  },
  {
    title: 'with a runtime that is too old',
    arrange: ({ install }: Machine) => install('80.0.1149.0'),
  },
  {
    title: 'with a loader in the current folder, where anybody may have put it',
    arrange: ({ sandbox }: Machine) => copyFileSync(fakeWebView2Dll, join(sandbox.documents, 'WebView2Loader.dll')),
  },
]) {
  test(`${title} one message box says where to get it, and the exit code is not 0`, async ({
    run,
    prefix,
    desktop,
    sandbox,
  }) => {
    prefix.removeRuntime();
    try {
      arrange({
        sandbox,
        register: (name, root) => prefix.registerRuntime(name, root),
        install: (name) => prefix.installRuntime(name),
      });
      const program = run();
      const box = await until('the message box', () => desktop.windowsOf(program.pid)[0]);
      await until('its text', () => readWindows(prefix).some(({ text }) => text === advice));
      expect(desktop.windowsOf(program.pid)).toEqual([{ id: box.id, title: 'Tessary' }]);
      desktop.focus(box);
      desktop.press('Return');
      expect(await program.exit()).toBe(1);
      expect(readFileSync(sandbox.logFile, 'utf8')).toMatch(/Server URL: http:\/\/localhost:\d+\r\n$/);
    } finally {
      prefix.removeRuntime();
      prefix.installRuntime();
    }
  });
}

test('a runtime that only the user has is good enough', async ({ open, prefix }) => {
  prefix.removeRuntime();
  try {
    prefix.installRuntime(version, 'HKCU');
    const program = await open();
    await program.shows('Open Words Tool');
    expect(await program.close()).toBe(0);
  } finally {
    prefix.removeRuntime();
    prefix.installRuntime();
  }
});
