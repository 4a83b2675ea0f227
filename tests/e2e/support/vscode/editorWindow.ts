import { expect, type FrameLocator, type Locator, type Page } from '@playwright/test';
import { existsSync, mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { basename, join } from 'node:path';

/** One window of the editor on a folder, as its users find their way in it. */
export class EditorWindow {
  constructor(
    readonly page: Page,
    readonly folder: string,
    readonly address: string,
  ) {}

  /**
   * Opens the window on the files that are in the folder, and waits until it knows what its extensions offer. It makes
   * what asks them for editors in its first idle moment only, and shows files as text before that.
   * @param address - of the window
   */
  async enter(address = this.address): Promise<void> {
    await this.page.goto(address);
    await this.page.locator('.monaco-workbench').waitFor();
    await this.page.waitForFunction(() => performance.getEntriesByName('code/didLoadExtensions').length > 0);
    await this.page.evaluate(() => new Promise((resolve) => requestIdleCallback(resolve)));
  }

  /**
   * Waits until the window notices what other programs write. It begins to watch its folder some seconds after it is
   * shown, and never learns of what was written before.
   */
  async watchesFolder(): Promise<void> {
    let tries = 0;
    await expect(async () => {
      const name = `noticed-${tries++}`;
      this.write(name, '');
      await this.page.getByRole('treeitem', { name, exact: true }).waitFor({ timeout: 2000 });
    }).toPass();
  }

  /** Puts a file into the folder, as another program. */
  write(name: string, text: string): void {
    writeFileSync(join(this.folder, name), text);
  }

  /**
   * Waits until the editor has stored that it shows a file. It does so every few seconds, as a window that goes has no
   * time for it; before that it would bring an unsaved file back as a text.
   */
  async remembers(name: string): Promise<void> {
    await expect.poll(() => this.page.evaluate(storedEditors)).toContain(name);
  }

  /** Puts settings for windows on the folder into it. */
  set(settings: Record<string, unknown>): void {
    mkdirSync(join(this.folder, '.vscode'));
    this.write('.vscode/settings.json', JSON.stringify(settings));
  }

  /** A file of the folder as it is on the disk; empty where there is none. */
  read(name: string): string {
    const file = join(this.folder, name);
    return existsSync(file) ? readFileSync(file, 'utf8') : '';
  }

  /** Opens a file of the folder by its name. */
  async open(name: string): Promise<void> {
    await this.#choose('Control+P', join(this.folder, name), basename(name));
    await this.tab(basename(name)).waitFor();
  }

  /** Shows a file again where another editor or none came into its place. */
  async bringBack(name: string): Promise<void> {
    if ((await this.tab(name).and(this.page.locator('[aria-selected="true"]')).count()) > 0) return;
    await this.open(name);
  }

  /** Puts a file into the folder and opens it in the Words editor. */
  async openWords(name: string, text: string): Promise<WordsView> {
    this.write(name, text);
    await this.open(name);
    const view = this.words();
    await view.shown();
    return view;
  }

  /** The address of a window that begins with a file of the folder. */
  addressWith(name: string): string {
    const { host } = new URL(this.address);
    const payload = [['openFile', `vscode-remote://${host}${join(this.folder, name)}`]];
    return `${this.address}&payload=${encodeURIComponent(JSON.stringify(payload))}`;
  }

  /** Runs a command by its name in the command palette. */
  async run(command: string): Promise<void> {
    await this.#choose('F1', `>${command}`, command);
  }

  /**
   * Chooses from the box in which the editor looks for files and commands. A page that comes up at that moment takes the
   * keyboard, which closes the box, and keys that are pressed before it listens are nobody's.
   */
  async #choose(key: string, text: string, option: string): Promise<void> {
    const input = this.page.locator('.quick-input-widget input').first();
    const options = this.page.locator('.quick-input-list').getByRole('option', { name: option });
    await expect(async () => {
      if (!(await input.isVisible())) await this.page.keyboard.press(key);
      await input.fill(text, { timeout: 3000 });
      await options.first().click({ timeout: 5000 });
    }).toPass();
  }

  /** Runs a command by its name in the menu of the right button. */
  async runFromMenu(place: Locator, command: string): Promise<void> {
    await place.click({ button: 'right' });
    const item = this.page.getByRole('menuitem', { name: command, exact: true });
    await item.waitFor();
    await expect(async () => {
      if (await item.isVisible()) await item.click({ timeout: 1000 }); // the editor ignores a click that comes too soon
      await expect(item).toBeHidden({ timeout: 1000 });
    }).toPass();
  }

  tab(name: string): Locator {
    return this.page.getByRole('tab', { name });
  }

  /** A tab counts as changed while it shows a dot in place of its close button. */
  async expectDirty(name: string, dirty: boolean): Promise<void> {
    const tab = this.tab(name).first();
    await (dirty ? expect(tab).toHaveClass(/(^| )dirty( |$)/) : expect(tab).not.toHaveClass(/(^| )dirty( |$)/));
  }

  /** What the editor says in a corner of its window. */
  notice(text: string | RegExp): Locator {
    return this.page.locator('.notification-toast').filter({ hasText: text });
  }

  dialog(): Locator {
    return this.page.locator('.monaco-dialog-box');
  }

  /** The page of one of the Words editors that are shown. */
  words(number = 0): WordsView {
    const view = this.page.locator('iframe.webview.ready').nth(number);
    return new WordsView(this, view.contentFrame().locator('#active-frame').contentFrame());
  }
}

/** The Words tool in an editor's web view. */
export class WordsView {
  constructor(
    readonly editor: EditorWindow,
    readonly frame: FrameLocator,
  ) {}

  async shown(): Promise<void> {
    await this.frame.getByRole('tabpanel').waitFor();
  }

  get body(): Locator {
    return this.frame.locator('body');
  }

  get sheets(): Locator {
    return this.frame.getByRole('tab');
  }

  /** The field with the value of the lowest word of a width. */
  value(bits = 64): Locator {
    const row = this.frame.getByRole('group', { name: `Int ${bits}`, exact: true });
    return row
      .getByRole('group', { name: `Int ${bits} word 1`, exact: true })
      .getByRole('textbox', { name: 'Value', exact: true })
      .first();
  }

  /** Types a number into the lowest word of a width. */
  async enter(text: string, bits = 64): Promise<void> {
    await this.value(bits).fill(text);
    await this.value(bits).press('Enter');
  }
}

/** Runs in a window: what the editor has stored of the files that its windows show. */
async function storedEditors(): Promise<string> {
  const ended = <Result>(request: IDBRequest<Result>) =>
    new Promise<Result>((resolve, reject) => {
      request.onsuccess = () => resolve(request.result);
      request.onerror = () => reject(request.error!);
    });
  const names = (await indexedDB.databases()).flatMap(({ name }) => (name?.includes('-state-db-') ? [name] : []));
  const stored = names.map(async (name) => {
    const database = await ended(indexedDB.open(name));
    const [table] = database.objectStoreNames;
    const value =
      table && (await ended(database.transaction(table).objectStore(table).get('memento/workbench.parts.editor')));
    database.close();
    return String(value);
  });
  return (await Promise.all(stored)).join();
}
