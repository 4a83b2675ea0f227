import { subscribe } from 'valtio';
import { afterEach, beforeEach, expect, test, vi } from 'vitest';
import { loadingState, withLoading } from './loading';

let now = 0;
beforeEach(() => {
  now = 0;
  vi.spyOn(performance, 'now').mockImplementation(() => now);
});
afterEach(() => vi.restoreAllMocks());

const items = Array.from({ length: 200 }, (_, at) => at);

/** Visits every item at 10 ms each; gives what the user saw of the progress, and how often others got a turn. */
async function loadSlowly(milliseconds: number) {
  const shown: (number | null)[] = [];
  const unsubscribe = subscribe(loadingState, () => shown.push(loadingState.fraction), true);
  const pauses = vi.spyOn(globalThis, 'setTimeout');
  await withLoading((loading) =>
    loading.visitAll(items, 0.5, 1, () => {
      now += milliseconds / items.length;
    }),
  );
  unsubscribe();
  return { shown, pauses: pauses.mock.calls.length };
}

test('quick work is done in one go and shows nothing', async () => {
  expect(await loadSlowly(10)).toEqual({ shown: [], pauses: 0 });
});

test('longer work lets the browser paint, still without progress', async () => {
  const { shown, pauses } = await loadSlowly(900);
  expect(pauses).toBeGreaterThan(50);
  expect(shown).toEqual([]);
});

test('work of over a second shows a growing share, and nothing when it is done', async () => {
  const { shown } = await loadSlowly(2000);
  const fractions = shown.slice(0, -1) as number[];
  expect(fractions.length).toBeGreaterThan(10);
  expect(fractions[0]).toBeGreaterThan(0.74);
  expect(fractions).toEqual([...fractions].sort((a, b) => a - b));
  expect(fractions.at(-1)).toBeLessThanOrEqual(1);
  expect(shown.at(-1)).toBeNull();
});

test('stops at the item that is refused', async () => {
  const seen: number[] = [];
  const all = await withLoading((loading) => loading.visitAll(items, 0, 1, (item) => (seen.push(item), item < 3)));
  expect(all).toBe(false);
  expect(seen).toEqual([0, 1, 2, 3]);
});

test('takes the progress off the screen after a failure', async () => {
  const failing = withLoading(async (loading) => {
    await loading.visitAll(items, 0, 1, () => {
      now += 20;
    });
    expect(loadingState.fraction).not.toBeNull();
    throw new Error('broken');
  });
  await expect(failing).rejects.toThrow('broken');
  expect(loadingState.fraction).toBeNull();
});
