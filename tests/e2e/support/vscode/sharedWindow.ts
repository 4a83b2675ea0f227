import { expect, type Page } from '@playwright/test';
import { mkdirSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import type { EditorServer } from './editorServer';
import { EditorWindow } from './editorWindow';

/** One window for story after story, each in a folder of its own below that of the window. */
export class SharedWindow {
  #stories = 0;

  private constructor(readonly editor: EditorWindow) {}

  static async start(page: Page, server: EditorServer): Promise<SharedWindow> {
    const folder = mkdtempSync(join(tmpdir(), 'tessary-folder-'));
    const editor = new EditorWindow(page, folder, server.address(folder));
    await editor.enter();
    await editor.watchesFolder();
    return new SharedWindow(editor);
  }

  /** @param timeout - of actions in the story, in milliseconds */
  newStory(timeout = 0): EditorWindow {
    const { page, folder, address } = this.editor;
    page.setDefaultTimeout(timeout);
    const own = join(folder, `story-${++this.#stories}`);
    mkdirSync(own);
    return new EditorWindow(page, own, address);
  }

  /** Leaves the window without files and notices, as the next story expects it. */
  async endStory(): Promise<void> {
    const { page } = this.editor;
    const story = `story-${this.#stories}`;
    await this.editor.run('View: Close All Editors');
    const discard = this.editor.dialog().getByRole('button', { name: "Don't Save" });
    const tabs = page.getByRole('tab').and(page.locator('.tab'));
    await expect(async () => {
      if (await discard.isVisible()) await discard.click();
      expect(await tabs.count()).toBe(0);
    }).toPass();
    if ((await page.locator('.notification-toast').count()) > 0) {
      await this.editor.run('Notifications: Clear All Notifications');
    }
    rmSync(join(this.editor.folder, story), { recursive: true });
    await expect(page.getByRole('treeitem', { name: story, exact: true })).toHaveCount(0);
  }

  async stop(): Promise<void> {
    await this.editor.page.context().close();
    rmSync(this.editor.folder, { recursive: true, force: true });
  }
}
