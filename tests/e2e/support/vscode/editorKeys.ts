import type { Page } from '@playwright/test';
import { until } from '../shared/until';
import type { EditorWindow } from './editorWindow';

/** The first keys of all key bindings that the editor has by default, as Playwright names them. */
export async function defaultKeys(editor: EditorWindow): Promise<Set<string>> {
  const { page } = editor;
  await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
  await editor.run('Preferences: Open Default Keyboard Shortcuts (JSON)');
  await page.locator('.editor-instance .view-line').first().click();
  await page.keyboard.press('Control+A');
  await page.keyboard.press('Control+C');
  const text = await page.evaluate(() => navigator.clipboard.readText());
  await page.keyboard.press('Control+W');
  const keys = [...text.matchAll(/^\{ "key": "(\S+?)[ "]/gm)].map(([, key]) => asPressed(key!));
  if (keys.length < 1000) throw new Error(`The list of the editor's keys has another form now: ${text.slice(0, 500)}`);
  return new Set(keys);
}

const NAMES: Readonly<Record<string, string>> = {
  ctrl: 'Control',
  left: 'ArrowLeft',
  right: 'ArrowRight',
  up: 'ArrowUp',
  down: 'ArrowDown',
  pageup: 'PageUp',
  pagedown: 'PageDown',
};

function asPressed(key: string): string {
  const parts = key.split(/\+(?!$)/).map((part) => NAMES[part] ?? part.replace(/^./, (first) => first.toUpperCase()));
  return parts.join('+');
}

/** Nothing is bound to it where the page is, so that it only shows that the editor has dealt with the key before it. */
const LAST = 'F12';
const DONE = /Invoking command (.+)\.$|Entering (multi-chord) mode|Resolving \[F12\]/;

/** The editor's own record of what it does with keys. */
export class EditorKeyLog {
  readonly #page: Page;
  #lines: string[] = [];

  private constructor(page: Page) {
    this.#page = page;
    page.on('console', (message) => this.#lines.push(message.text()));
  }

  static async start(editor: EditorWindow): Promise<EditorKeyLog> {
    const log = new EditorKeyLog(editor.page);
    await editor.run('Developer: Toggle Keyboard Shortcuts Troubleshooting');
    const panel = editor.page.locator('.part.panel');
    await panel.locator(':focus').waitFor({ state: 'attached' }); // it comes to the front when it is filled
    await editor.run('View: Hide Panel');
    await panel.waitFor({ state: 'hidden' });
    return log;
  }

  /** Presses a key. @returns the command that the editor runs on it, or "multi-chord" where it waits for a second key */
  async press(key: string): Promise<string | undefined> {
    this.#lines = [];
    await this.#page.keyboard.press(key);
    await this.#page.keyboard.press(LAST);
    const [, command, chord] = await until(`the editor to have dealt with ${key}`, () => this.#done());
    return command ?? chord;
  }

  #done(): RegExpExecArray | undefined {
    return this.#lines.map((line) => DONE.exec(line)).find((match) => match !== null);
  }
}
