// @vitest-environment jsdom
import { afterEach, expect, test, vi } from 'vitest';

/** Loads the code in a host and shows some elements. Gives whether the engine's menu comes when it is asked for. */
async function loadPage(host: 'browser' | 'WebKitGTK' | 'WebView2') {
  vi.resetModules();
  window.tessary = host === 'browser' ? undefined : { backend: { implementation: 'cpp' } };
  vi.stubGlobal('chrome', host === 'WebView2' ? { webview: {} } : {});
  const { restrictEngineMenu } = await import('./engineMenu');
  restrictEngineMenu();
  document.body.innerHTML =
    '<p>Text</p><a href="/x"><b>Link</b></a><input aria-label="f"><input type="checkbox"><textarea></textarea>';
  return (selector: string, shiftKey = false) => {
    const event = new MouseEvent('contextmenu', { bubbles: true, cancelable: true, shiftKey });
    document.querySelector(selector)?.dispatchEvent(event);
    return !event.defaultPrevented;
  };
}

afterEach(() => {
  getSelection()?.removeAllRanges();
  vi.restoreAllMocks();
  vi.unstubAllGlobals();
});

test.each(['WebKitGTK', 'browser'] as const)('with %s nothing is done about it', async (host) => {
  const menuComes = await loadPage(host);
  expect(menuComes('p')).toBe(true);
});

test("on Windows the engine's menu comes where it is about a field, a link or selected text, and with Shift", async () => {
  const menuComes = await loadPage('WebView2');
  expect(menuComes('p')).toBe(false);
  expect(menuComes('[type=checkbox]')).toBe(false);
  expect(menuComes('p', true)).toBe(true);
  for (const about of ['[aria-label=f]', 'textarea', 'b']) expect(menuComes(about), about).toBe(true);
  getSelection()?.selectAllChildren(document.querySelector('p') as Element);
  expect(menuComes('p')).toBe(true);
});
