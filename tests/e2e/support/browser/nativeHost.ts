import type { Page } from '@playwright/test';

export interface NativeHostOptions {
  /** Files that the host can read, by path. */
  files?: Record<string, string>;
  /** What the host was started with. */
  args?: { error?: string | null; filePath?: string | null };
  /** What the next dialogs answer, in their order: a path, or null for a cancel. */
  choices?: (string | null)[];
  msPackageName?: string | null;
  /** Paths that cannot be written. */
  readOnly?: string[];
  /** Bound functions that the host lacks. */
  missing?: string[];
}

/** One call of a bound function, with its arguments. */
export type HostCall = [name: string, ...args: unknown[]];

/** What the stub keeps on the page's window. */
interface StubWindow {
  hostCalls: HostCall[];
  hostFiles: Record<string, string>;
}

/** Puts the native host's globals and bound functions into the page before its scripts run. Files live in memory. */
export async function stubNativeHost(page: Page, options: NativeHostOptions = {}): Promise<void> {
  await page.addInitScript((given: NativeHostOptions) => {
    const calls: unknown[][] = [];
    const files = { ...given.files };
    const choices = [...(given.choices ?? [])];
    const choose = () => {
      const path = choices.shift();
      return path ? { success: true, path } : { success: false, error: 'user-cancelled' };
    };
    const handlers: Record<string, (...args: string[]) => unknown> = {
      showOpenDialog: choose,
      showSaveDialog: choose,
      readFile(path) {
        const data = files[path];
        if (data === undefined) return { success: false, error: 'file-not-found' };
        return data === '' ? { success: true } : { success: true, data };
      },
      writeFile(path, content) {
        if (given.readOnly?.includes(path)) return { success: false, error: 'file-write-failed' };
        files[path] = content!;
        return { success: true };
      },
      openExternalUrl: () => null,
    };
    const bound = Object.entries(handlers)
      .filter(([name]) => !given.missing?.includes(name))
      .map(([name, handler]) => [
        name,
        async (...args: string[]) => {
          calls.push([name, ...args]);
          // As the real bridge does, the answer passes through JSON.
          return JSON.parse(JSON.stringify(await handler(...args)));
        },
      ]);
    Object.assign(window, Object.fromEntries(bound), {
      hostCalls: calls,
      hostFiles: files,
      tessary: {
        os: { platform: 'windows', arch: 'x64' },
        backend: {
          implementation: 'cpp',
          msPackageName: given.msPackageName ?? null,
        },
        args: { error: null, filePath: null, ...given.args },
      },
    });
  }, options);
}

/** The calls of bound functions so far. */
export function hostCalls(page: Page): Promise<HostCall[]> {
  return page.evaluate(() => (window as unknown as StubWindow).hostCalls);
}

/** The content of a file in the stub's memory. */
export function hostFile(page: Page, path: string): Promise<string | undefined> {
  return page.evaluate((name) => (window as unknown as StubWindow).hostFiles[name], path);
}
