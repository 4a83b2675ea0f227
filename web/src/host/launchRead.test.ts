// @vitest-environment jsdom
import { afterEach, beforeEach, describe, expect, test, vi } from 'vitest';

const PATH = '/somewhere/a.words.tessary';
const answer = { success: true, data: '{}' };
const readFile = vi.fn(async () => answer);

/** Loads the module as the host's globals are now. */
async function load(args: NonNullable<Window['tessary']>['args'], read: Window['readFile'] = readFile) {
  window.tessary = { args, backend: { implementation: 'cpp' } };
  window.readFile = read;
  vi.resetModules();
  return import('./launchRead');
}

beforeEach(() => readFile.mockReset().mockResolvedValue(answer));
afterEach(() => {
  delete window.tessary;
  delete window.readFile;
  history.replaceState(null, '', '/');
});

describe('the file that the host was started with', () => {
  test('is asked for as soon as the script runs, and once', async () => {
    const { readLaunchFile } = await load({ filePath: PATH });
    expect(readFile).toHaveBeenCalledExactlyOnceWith(PATH);
    expect(await readLaunchFile(PATH, readFile)).toBe(answer);
    expect(readFile).toHaveBeenCalledTimes(1);
  });

  test('is read anew when the start page comes again', async () => {
    const { readLaunchFile } = await load({ filePath: PATH });
    await readLaunchFile(PATH, readFile);
    await readLaunchFile(PATH, readFile);
    expect(readFile).toHaveBeenCalledTimes(2);
  });

  test('whose reading fails at once is told so where it is awaited', async () => {
    const broken = () => {
      throw new Error('gone');
    };
    const { readLaunchFile } = await load({ filePath: PATH }, broken);
    await expect(readLaunchFile(PATH, broken)).rejects.toThrow('gone');
  });

  test.each([
    ['there is none', { error: null, filePath: null }, ''],
    ['the host failed', { error: 'broken', filePath: PATH }, ''],
    ['its path gets no answer', { filePath: 'a\u007f' }, ''],
    ['the sheets come back after a crash', { filePath: PATH }, '?restored'],
  ])('is not asked for when %s', async (_, args, search) => {
    history.replaceState(null, '', `/${search}`);
    await load(args);
    expect(readFile).not.toHaveBeenCalled();
  });
});
