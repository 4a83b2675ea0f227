import { proxy } from 'valtio';

/** Longest stretch of work without letting the browser paint, in milliseconds. */
const LONGEST_STRETCH = 12;
/** Loading that takes longer than this shows its progress, in milliseconds. */
const PATIENCE = 1000;

/** What the user sees of a document that takes its time to load. */
export const loadingState = proxy<{
  /** From 0 to 1 while a long loading is under way, else null. */
  fraction: number | null;
}>({ fraction: null });

/** One document on its way into the page. Cuts long work into stretches between which the browser can paint. */
export class Loading {
  private readonly begin = performance.now();
  private stretchBegin = this.begin;

  /**
   * Calls `visit` for every item in order until it gives false.
   * @param from - share of the whole loading that is done before the first item
   * @param to - the same after the last item
   * @returns whether every item was visited
   */
  async visitAll<T>(items: readonly T[], from: number, to: number, visit: (item: T) => unknown) {
    for (let index = 0; index < items.length; index++) {
      if (visit(items[index]!) === false) return false;
      if (performance.now() - this.stretchBegin > LONGEST_STRETCH) {
        await this.pause(from + ((to - from) * (index + 1)) / items.length);
      }
    }
    return true;
  }

  finish(): void {
    loadingState.fraction = null;
  }

  private async pause(fraction: number): Promise<void> {
    if (performance.now() - this.begin > PATIENCE) loadingState.fraction = fraction;
    await new Promise((resolve) => setTimeout(resolve));
    this.stretchBegin = performance.now();
  }
}

/** Runs one loading and takes its progress off the screen again, however it ends. */
export async function withLoading<T>(run: (loading: Loading) => Promise<T>): Promise<T> {
  const loading = new Loading();
  try {
    return await run(loading);
  } finally {
    loading.finish();
  }
}
