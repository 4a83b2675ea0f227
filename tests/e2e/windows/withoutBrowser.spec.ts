import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { until } from '../support/shared/until';
import type { FakeWebView2 } from '../support/windows/fakeWebView2';
import { expect, test } from '../support/windows/fixtures';

// No page is shown here: the test answers the program in the browser's place.

const bound = ['showOpenDialog', 'showSaveDialog', 'readFile', 'writeFile', 'openExternalUrl'];
const clipboardRead = '6';
const camera = '2';

/** The name of the function that a script binds into the page. */
const boundName = (script: string) => /name = '(\w+)'/.exec(script)?.[1];

/** The program is ready for the page when it has given its window its size. */
const ready = (runtime: FakeWebView2) => runtime.reported('bounds', (size) => size === '800 600');

/** Calls a bound function as a page does, and gives the script with which the program answers. */
async function answerTo(runtime: FakeWebView2, id: number, method: string, ...params: unknown[]): Promise<string> {
  runtime.post(JSON.stringify({ id, method, params }));
  return runtime.reported('exec', (script) => script.includes(`seq = "${id}"`));
}

test('the program asks its browser runtime for what it needs, in order, and for nothing else', async ({
  run,
  runtime,
}) => {
  const program = run();
  await ready(runtime);
  const verbs = runtime.calls.map(({ verb }) => verb);
  expect(verbs.slice(0, 5)).toEqual(['environment', 'create-controller', 'dev-tools', 'status-bar', 'init']);
  expect(runtime.texts('environment')).toEqual([expect.stringMatching(/^1 0 no-options .*\\tessary\.exe$/)]);
  expect(runtime.texts('dev-tools')).toEqual(['1']);
  expect(runtime.texts('unexpected-call')).toEqual([]);
  const scripts = runtime.texts('init');
  expect(scripts).toHaveLength(8);
  expect(scripts[1]).toContain("implementation: 'cpp'");
  expect(scripts.slice(2, 7).map(boundName)).toEqual(bound);
  expect(scripts[7]).toContain('window.tessary.args = {');
  expect(verbs.indexOf('navigate')).toBeGreaterThan(verbs.lastIndexOf('init'));
  expect(runtime.texts('navigate')).toEqual([expect.stringMatching(/^http:\/\/localhost:\d+$/)]);
  runtime.closeWindow();
  expect(await program.exit()).toBe(0);
});

test('a call is answered by a script in plain ASCII', async ({ run, runtime, sandbox }) => {
  sandbox.write('text', 'é À 漢字 😀');
  run();
  await ready(runtime);
  const answer = await answerTo(runtime, 1, 'readFile', sandbox.windowsPath('text'));
  expect(answer).toMatch(/^[\n -~]+$/);
  expect(answer).toContain('\\\\u00e9 \\\\u00c0 \\\\u6f22\\\\u5b57 \\\\ud83d\\\\ude00');
});

test('a request that the library cannot take apart is refused', async ({ run, runtime, sandbox }) => {
  run();
  await ready(runtime);
  const answer = await answerTo(runtime, 1, 'writeFile', sandbox.windowsPath('gone'), 'before\u007fafter');
  expect(answer).toContain('invalid-arguments');
});

test('messages that are no calls are passed over', async ({ run, runtime, sandbox }) => {
  const program = run();
  await ready(runtime);
  for (const message of ['', 'text', '{}', '[]', 'null', '{"id":1}', '{"id":1,"method":"unknown","params":[]}']) {
    runtime.post(message);
  }
  expect(await answerTo(runtime, 7, 'writeFile', sandbox.windowsPath('after'), 'all')).toContain('success');
  expect(readFileSync(join(sandbox.documents, 'after'), 'utf8')).toBe('all');
  runtime.closeWindow();
  expect(await program.exit()).toBe(0);
});

test('a page may read the clipboard without a question, and nothing else', async ({ run, runtime }) => {
  run();
  await ready(runtime);
  runtime.askForPermission(camera);
  runtime.askForPermission(clipboardRead);
  await runtime.reported('permission-state');
  expect(runtime.texts('permission-state')).toEqual(['1']);
});

test('the window stays on the page of the program', async ({ run, runtime, linkRecorder }) => {
  run();
  await ready(runtime);
  const own = runtime.texts('navigate')[0] ?? '';
  expect(await runtime.startNavigation(`${own}/`)).toBe(true);
  expect(await runtime.startNavigation(`${own}/index.html`)).toBe(true);
  // A route of the page's own, which the server does not know, leads to the start page.
  expect(await runtime.startNavigation(`${own}/words`)).toBe(false);
  await until('the start page', () => runtime.texts('navigate').at(-1) === `${own}/`);
  for (const address of ['file:///C:/windows/win.ini', 'data:text/html,x', 'ftp://localhost/']) {
    expect(await runtime.startNavigation(address), address).toBe(false);
    expect(await runtime.requestNewWindow(address), address).toBe(false);
  }
  expect(await runtime.requestNewWindow(`${own}/words`)).toBe(false);
  for (const address of ['https://example.org/a?b', 'mailto:someone@example.org']) {
    expect(await runtime.startNavigation(address)).toBe(false);
    expect(await linkRecorder.opened(address)).toBe(address);
    expect(await runtime.requestNewWindow(address)).toBe(false);
    expect(await linkRecorder.opened(address)).toBe(address);
  }
  expect(runtime.texts('unexpected-call')).toEqual([]);
});
