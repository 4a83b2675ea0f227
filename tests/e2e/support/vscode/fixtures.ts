import { test as base } from '@playwright/test';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { EditorServer } from './editorServer';
import { EditorWindow } from './editorWindow';
import { SharedWindow } from './sharedWindow';

interface WorkerFixtures {
  server: EditorServer;
  sharedWindow: SharedWindow;
}

interface Fixtures {
  /** A window without open files, and an empty folder. */
  editor: EditorWindow;
}

/**
 * Stories about documents. A window's start takes more of the processors than such a story, so that all of a worker have
 * one window; each has a folder of its own in it. A story that fails ends the worker, and with it the window.
 */
export const test = base.extend<Fixtures, WorkerFixtures>({
  server: [
    async ({}, use) => {
      const server = await EditorServer.start();
      await use(server);
      await server.stop();
    },
    { scope: 'worker' },
  ],
  sharedWindow: [
    async ({ browser, server }, use, { project }) => {
      const { viewport } = project.use;
      const shared = await SharedWindow.start(await browser.newPage({ viewport }), server);
      await use(shared);
      await shared.stop();
    },
    { scope: 'worker' },
  ],
  editor: async ({ sharedWindow }, use, { project, status, expectedStatus }) => {
    const editor = sharedWindow.newStory(project.use.actionTimeout);
    await use(editor);
    if (status === expectedStatus) await sharedWindow.endStory();
  },
  page: ({ editor }, use) => use(editor.page),
});

/** Stories about the life of windows and about settings: each has a window of its own, not opened yet. */
export const ownWindowTest = test.extend({
  page: async ({ context }, use) => use(await context.newPage()),
  editor: async ({ page, server }, use) => {
    const folder = mkdtempSync(join(tmpdir(), 'tessary-folder-'));
    await use(new EditorWindow(page, folder, server.address(folder)));
    await page.close();
    rmSync(folder, { recursive: true, force: true });
  },
});

export { expect } from '@playwright/test';
