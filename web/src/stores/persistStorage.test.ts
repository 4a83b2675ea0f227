// @vitest-environment jsdom
import { afterEach, beforeEach, describe, expect, test, vi } from 'vitest';

const KEY = 'bits-sheets-storage';
/** By then the page's start is over, in milliseconds. */
const STARTED = 1500;
const SET_ASIDE = 'bits-sheets-storage-set-aside';

/** The page's store as it is after (another) load of the page. */
async function loadPage() {
  vi.resetModules();
  const { useSheetsStore } = await import('./sheetsStore');
  return useSheetsStore;
}

beforeEach(() => localStorage.clear());
afterEach(() => {
  vi.unstubAllGlobals();
  vi.restoreAllMocks();
});

describe('what is kept between visits', () => {
  test('sheets, file and unsaved mark are there again after a reload', async () => {
    const before = await loadPage();
    const { id } = before.getState().addSheet();
    before.getState().updateSheet(id, { int: 2n ** 63n, signMap: new Map([['0:64', true]]) });
    await vi.waitFor(() => expect(localStorage.getItem(KEY)).toContain('9223372036854775808'));
    const after = (await loadPage()).getState();
    expect([...after.sheets.values()]).toEqual([...before.getState().sheets.values()]);
    expect(after).toMatchObject({
      activeSheetKey: id,
      documentFile: { name: 'Untitled.words.tessary' },
      isUnsaved: true,
    });
  });

  test('a change just before leaving is written in time', async () => {
    const store = await loadPage();
    store.getState().addSheet();
    expect(localStorage.getItem(KEY)).toBeNull();
    dispatchEvent(new Event('pagehide'));
    expect(localStorage.getItem(KEY)).toContain('Number A');
  });

  test('several changes in one task are written once', async () => {
    const store = await loadPage();
    const write = vi.spyOn(Storage.prototype, 'setItem');
    for (let count = 0; count < 5; count++) store.getState().addSheet();
    await vi.waitFor(() => expect(localStorage.getItem(KEY)).toContain('Number E'));
    expect(write).toHaveBeenCalledTimes(1);
  });

  test('what is shown at the start is not held up by a record', async () => {
    vi.useFakeTimers();
    const store = await loadPage();
    store.getState().addSheet();
    vi.advanceTimersByTime(249);
    expect(localStorage.getItem(KEY)).toBeNull();
    vi.advanceTimersByTime(1);
    expect(localStorage.getItem(KEY)).toContain('Number A');
    vi.advanceTimersByTime(STARTED);
    store.getState().addSheet();
    vi.advanceTimersByTime(0);
    expect(localStorage.getItem(KEY)).toContain('Number B');
    vi.useRealTimers();
  });

  test('a record that takes long to write is written less often, but never lost', async () => {
    const store = await loadPage();
    let now = 0;
    vi.spyOn(performance, 'now').mockImplementation(() => (now += 100));
    store.getState().addSheet();
    store.getState().persistState();
    vi.restoreAllMocks();
    vi.useFakeTimers();
    vi.advanceTimersByTime(STARTED);
    store.getState().addSheet();
    vi.advanceTimersByTime(999);
    expect(localStorage.getItem(KEY)).not.toContain('Number B');
    vi.advanceTimersByTime(1);
    expect(localStorage.getItem(KEY)).toContain('Number B');
    vi.useRealTimers();
  });

  test.each(['{', '{"json":{"state":{},"version":7}}', 'not ours'])('a broken record %s is set aside', async (text) => {
    vi.spyOn(console, 'warn').mockImplementation(() => {});
    localStorage.setItem(KEY, text);
    const store = await loadPage();
    expect(store.getState().sheets.size).toBe(0);
    expect(localStorage.getItem(SET_ASIDE)).toBe(text);
    expect(localStorage.getItem(KEY)).toBeNull();
    store.getState().addSheet();
    store.getState().persistState();
    expect(localStorage.getItem(KEY)).toContain('Number A');
  });

  test('a browser that refuses storage stops nothing', async () => {
    vi.spyOn(Storage.prototype, 'getItem').mockImplementation(() => {
      throw new DOMException('denied', 'SecurityError');
    });
    vi.spyOn(Storage.prototype, 'setItem').mockImplementation(() => {
      throw new DOMException('full', 'QuotaExceededError');
    });
    const store = await loadPage();
    store.getState().addSheet();
    store.getState().persistState();
    expect(store.getState().sheets.size).toBe(1);
  });

  test('a record that does not fit any more is removed rather than left to bring back another document', async () => {
    const store = await loadPage();
    store.getState().addSheet();
    store.getState().persistState();
    vi.spyOn(Storage.prototype, 'setItem').mockImplementation(() => {
      throw new DOMException('full', 'QuotaExceededError');
    });
    store.getState().addSheet();
    store.getState().persistState();
    expect(localStorage.getItem(KEY)).toBeNull();
  });

  test('the smallest sheet takes more room than is reckoned for it', async () => {
    const store = await loadPage();
    const sheet = { id: '', displayName: '', int: '0', intResolution: 8, signMap: {}, numberDefinitions: [] };
    const length = async (count: number) => {
      const sheets = Array.from({ length: count }, () => ({ ...sheet }) as never);
      await store.getState().loadWordsDocument({ tool: 'words', version: 1, sheets });
      store.getState().persistState();
      return localStorage.getItem(KEY)!.length;
    };
    expect((await length(3)) - (await length(2))).toBeGreaterThan(300);
  });
});

describe('in an editor extension', () => {
  test("the record is a member of the extension's state, beside others", async () => {
    let kept: unknown = { other: 1 };
    vi.stubGlobal('acquireVsCodeApi', () => ({
      postMessage: vi.fn(),
      getState: () => kept,
      setState: (state: unknown) => (kept = state),
    }));
    const store = await loadPage();
    const { id } = store.getState().addSheet();
    store.getState().persistState();
    expect(Object.keys(kept as object)).toEqual(['other', KEY]);
    expect(localStorage.length).toBe(0);
    expect([...(await loadPage()).getState().sheets.keys()]).toEqual([id]);
  });
});
