// @vitest-environment jsdom
import { cleanup, screen } from '@testing-library/react';
import { afterEach, beforeEach, expect, test, vi } from 'vitest';
import { documentData, sheetData } from '../testing/documents';

/** Loads the page anew, as the window's globals have its host. */
async function loadPage() {
  vi.resetModules();
  const { renderPageWith } = await import('../testing/renderPage');
  const { PageRouter } = await import('./PageRouter');
  renderPageWith(PageRouter);
}
const send = (displayName: string) =>
  window.dispatchEvent(
    new CustomEvent('vscode-session-data', {
      detail: { data: documentData({ sheets: [sheetData({ id: displayName, displayName })] }) },
    }),
  );

beforeEach(() => history.replaceState(null, '', '/web-view/index.html?id=1'));
afterEach(() => {
  cleanup();
  vi.unstubAllGlobals();
  history.replaceState(null, '', '/');
});

test("an editor's web view shows its documents at whatever address it has, and none is a step to go back to", async () => {
  vi.stubGlobal('acquireVsCodeApi', () => ({ postMessage: vi.fn(), getState: () => ({}), setState: vi.fn() }));
  await loadPage();
  const entries = history.length;
  for (const name of ['First', 'Second']) {
    send(name);
    expect(await screen.findByRole('tab', { name })).toBeDefined();
  }
  expect(history.length).toBe(entries);
  expect(location.pathname).toBe('/web-view/index.html');
});

test('elsewhere the route is the address', async () => {
  history.replaceState(null, '', '/settings');
  await loadPage();
  expect((await screen.findByRole('main')).textContent).toBe('settings');
});
