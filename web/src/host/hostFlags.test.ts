import { afterEach, beforeEach, describe, expect, test, vi } from 'vitest';

/** Loads the flags afresh in a page whose window holds exactly `globals`. */
async function flagsWith(globals: Record<string, unknown>) {
  vi.stubGlobal('window', globals);
  return import('./hostFlags');
}

beforeEach(() => {
  vi.resetModules();
});
afterEach(() => {
  vi.unstubAllGlobals();
});

describe('host flags', () => {
  test('outside a browser a window object is made and every flag is false', async () => {
    expect(typeof window).toBe('undefined');
    const { vsCodeApi, ...flags } = await import('./hostFlags');
    expect(vsCodeApi).toBeNull();
    expect(Object.values(flags)).toEqual([false, false, false, false, false]);
    expect(globalThis.window).toEqual({});
    Reflect.deleteProperty(globalThis, 'window');
  });

  test.each([
    ['cpp', true],
    ['CPP', false],
    ['rust', false],
    ['', false],
  ])('implementation "%s" selects the native host: %s', async (implementation, expected) => {
    expect((await flagsWith({ tessary: { backend: { implementation } } })).isCppBackend).toBe(expected);
  });

  test.each([
    ['Maker.App_1.0_x64__abc', true],
    ['', false],
    [null, false],
    [undefined, false],
  ])('package name %s means a store package: %s', async (msPackageName, expected) => {
    expect((await flagsWith({ tessary: { backend: { msPackageName } } })).isMsStorePackage).toBe(expected);
  });

  test('the editor extension is recognised by its interface, which is taken once', async () => {
    const api = { postMessage: vi.fn(), getState: vi.fn(), setState: vi.fn() };
    const acquire = vi.fn(() => api);
    vi.stubGlobal('acquireVsCodeApi', acquire);
    const flags = await flagsWith({});
    expect(flags.isVsCode).toBe(true);
    expect(flags.vsCodeApi).toBe(api);
    expect(acquire).toHaveBeenCalledTimes(1);
  });

  test.each([
    { name: 'media query matches', matches: true, navigator: {}, expected: true },
    { name: 'navigator says so', matches: false, navigator: { standalone: true }, expected: true },
    { name: 'neither', matches: false, navigator: { standalone: false }, expected: false },
    { name: 'no navigator', matches: true, navigator: undefined, expected: false },
  ])('standalone: $name', async ({ matches, navigator, expected }) => {
    expect((await flagsWith({ matchMedia: () => ({ matches }), navigator })).isStandalone).toBe(expected);
  });

  test('an opener for links is recognised by being a function', async () => {
    expect((await flagsWith({ openExternalUrl: () => null })).hasExternalUrlOpener).toBe(true);
    vi.resetModules();
    expect((await flagsWith({ openExternalUrl: 'yes' })).hasExternalUrlOpener).toBe(false);
  });
});
