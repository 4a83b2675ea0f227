import { test as base } from '@playwright/test';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { EditorServer } from './editorServer';
import { EditorWindow } from './editorWindow';

interface Fixtures {
  /** A window on an empty folder, not opened yet. */
  editor: EditorWindow;
}

export const test = base.extend<Fixtures, { server: EditorServer }>({
  server: [
    async ({}, use) => {
      const server = await EditorServer.start();
      await use(server);
      await server.stop();
    },
    { scope: 'worker' },
  ],
  editor: async ({ page, server }, use) => {
    const folder = mkdtempSync(join(tmpdir(), 'tessary-folder-'));
    await use(new EditorWindow(page, folder, server.address(folder)));
    await page.close();
    rmSync(folder, { recursive: true, force: true });
  },
});

export { expect } from '@playwright/test';
