// @vitest-environment jsdom
import { afterEach, beforeEach, describe, expect, test, vi } from 'vitest';
import { WORDS_FILE_TYPE } from '../document/fileType';
import { FileService } from './fileService';

const flags = vi.hoisted(() => ({ isCppBackend: false, isVsCode: false }));
vi.mock('./hostFlags', () => flags);

const service = new FileService();
const PATH = '/home/me/mine.words.tessary';

beforeEach(() => {
  flags.isCppBackend = false;
  flags.isVsCode = false;
});
afterEach(() => {
  for (const name of ['showOpenDialog', 'showSaveDialog', 'readFile', 'writeFile'] as const) delete window[name];
  delete window.showOpenFilePicker;
  delete window.showSaveFilePicker;
  document.body.replaceChildren();
  vi.restoreAllMocks();
});

/** A handle as the browser's pickers give it, whose file can be read and written. */
function browserHandle(name: string, content = '') {
  const writable = { write: vi.fn(async () => {}), close: vi.fn(async () => {}) };
  const getFile = async () => ({ name, text: async () => content });
  return { name, getFile, createWritable: vi.fn(async () => writable), writable };
}
type BrowserHandle = FileSystemFileHandle & ReturnType<typeof browserHandle>;

describe('which branch is taken', () => {
  test('the native host comes before everything else', async () => {
    flags.isCppBackend = true;
    flags.isVsCode = true;
    window.showOpenFilePicker = vi.fn();
    window.showSaveFilePicker = vi.fn();
    window.showOpenDialog = async () => ({ success: true, path: PATH });
    window.readFile = async () => ({ success: true, data: 'text' });
    expect((await service.openFile()).content).toBe('text');
    expect(window.showOpenFilePicker).not.toHaveBeenCalled();
  });

  test('an editor extension does its own file work', async () => {
    flags.isVsCode = true;
    await expect(service.openFile()).rejects.toThrow('VSCode file opening should be handled by the extension');
    await expect(service.saveFile('', undefined)).rejects.toThrow(
      'VSCode file saving should be handled by the extension',
    );
  });

  test('the modern branch needs both pickers', () => {
    expect(service.supportsFSA).toBe(false);
    window.showOpenFilePicker = vi.fn();
    expect(service.supportsFSA).toBe(false);
    window.showSaveFilePicker = vi.fn();
    expect(service.supportsFSA).toBe(true);
  });
});

describe('opening in the native host', () => {
  beforeEach(() => {
    flags.isCppBackend = true;
    window.showOpenDialog = vi.fn(async () => ({ success: true, path: 'C:\\dir\\a.words.tessary' }));
    window.readFile = vi.fn(async () => ({ success: true, data: 'text' }));
  });

  test('asks with the type and its patterns and reads what was chosen', async () => {
    expect(await service.openFile(WORDS_FILE_TYPE)).toEqual({
      fileHandle: { path: 'C:\\dir\\a.words.tessary', name: 'a.words.tessary' },
      content: 'text',
    });
    expect(window.showOpenDialog).toHaveBeenCalledExactlyOnceWith('Tessary Files', '*.words.tessary;*.tessary');
    expect(window.readFile).toHaveBeenCalledExactlyOnceWith('C:\\dir\\a.words.tessary');
  });

  test('leaves name and pattern open without a type', async () => {
    await service.openFile();
    expect(window.showOpenDialog).toHaveBeenCalledExactlyOnceWith(undefined, undefined);
  });

  test('an empty file has empty content', async () => {
    window.readFile = async () => ({ success: true });
    expect((await service.openFile()).content).toBe('');
  });

  test.each([
    ['the dialog is cancelled', { success: false, error: 'user-cancelled' }, 'user-cancelled'],
    ['the dialog fails', { success: false, error: 'broken' }, 'broken'],
    ['the dialog fails without a code', { success: false, error: '' }, 'Failed to open file'],
    ['no path comes back', { success: true }, 'No file path returned'],
  ])('throws when %s', async (_, answer, message) => {
    window.showOpenDialog = async () => answer;
    await expect(service.openFile()).rejects.toThrow(new Error(message));
  });

  test.each([
    ['with its code', { success: false, error: 'file-not-found' }, 'file-not-found'],
    ['without a code', { success: false }, 'Failed to read file'],
  ])('throws when reading fails %s', async (_, answer, message) => {
    window.readFile = async () => answer;
    await expect(service.openFile()).rejects.toThrow(new Error(message));
  });

  test.each(['showOpenDialog', 'readFile'] as const)('throws without %s', async (name) => {
    delete window[name];
    await expect(service.openFile()).rejects.toThrow('C++ backend file dialog binding not available');
  });
});

describe('saving in the native host', () => {
  beforeEach(() => {
    flags.isCppBackend = true;
    window.showSaveDialog = vi.fn(async () => ({ success: true, path: PATH }));
    window.writeFile = vi.fn(async () => ({ success: true }));
  });
  const save = (path?: string, suggestedName?: string) =>
    service.saveFile('text', { name: 'x', ...(path && { path }) }, suggestedName, WORDS_FILE_TYPE);

  test('asks for a place with name, type, patterns and extension', async () => {
    expect(await save(undefined, 'Untitled.words.tessary')).toEqual({
      success: true,
      fileHandle: { path: PATH, name: 'mine.words.tessary' },
    });
    expect(window.showSaveDialog).toHaveBeenCalledExactlyOnceWith(
      'Untitled.words.tessary',
      'Tessary Files',
      '*.words.tessary;*.tessary',
      'words.tessary',
    );
    expect(window.writeFile).toHaveBeenCalledExactlyOnceWith(PATH, 'text');
  });

  test('suggests "untitled" when there is no name, and leaves the rest open without a type', async () => {
    await service.saveFile('text', undefined);
    expect(window.showSaveDialog).toHaveBeenCalledExactlyOnceWith('untitled', undefined, undefined, undefined);
  });

  test('writes to a known path without asking', async () => {
    expect(await save('/home/me/b.tessary')).toEqual({
      success: true,
      fileHandle: { path: '/home/me/b.tessary', name: 'b.tessary' },
    });
    expect(window.showSaveDialog).not.toHaveBeenCalled();
    expect(window.writeFile).toHaveBeenCalledExactlyOnceWith('/home/me/b.tessary', 'text');
  });

  test.each([
    ['a cancelled dialog', { success: false, error: 'user-cancelled' }, 'user-cancelled'],
    ['a failed dialog without a code', { success: false }, 'user-cancelled'],
    ['a dialog without a path', { success: true }, 'No file path provided'],
  ])('returns the failure of %s', async (_, answer, error) => {
    window.showSaveDialog = async () => answer;
    expect(await save()).toEqual({ success: false, error });
    expect(window.writeFile).not.toHaveBeenCalled();
  });

  test.each([
    ['its code', { success: false, error: 'disk-full' }, 'disk-full'],
    ['a general one', { success: false }, 'file-write-failed'],
  ])('returns a failed write with %s', async (_, answer, error) => {
    window.writeFile = async () => answer;
    expect(await save(PATH)).toEqual({ success: false, error });
  });

  test('says of a path that has no way to the host that it cannot be used, instead of waiting for ever', async () => {
    window.showSaveDialog = async () => ({ success: true, path: '/home/me/a\u007fb.tessary' });
    await expect(save()).rejects.toThrow('The file name holds the control character U+007F: choose another name');
    expect(window.writeFile).not.toHaveBeenCalled();
  });

  test.each(['showSaveDialog', 'writeFile'] as const)('throws without %s', async (name) => {
    delete window[name];
    await expect(save(PATH)).rejects.toThrow('C++ backend file dialog binding not available');
  });
});

describe('a browser with file handles', () => {
  const types = [{ description: 'Tessary Files', accept: { 'application/json': ['.words.tessary', '.tessary'] } }];

  test('opens one file and keeps its handle', async () => {
    const handle = browserHandle('a.tessary', 'text') as unknown as BrowserHandle;
    window.showOpenFilePicker = vi.fn(async () => [handle]);
    window.showSaveFilePicker = vi.fn();
    expect(await service.openFile(WORDS_FILE_TYPE)).toEqual({
      fileHandle: { name: 'a.tessary', handle },
      content: 'text',
    });
    expect(window.showOpenFilePicker).toHaveBeenCalledExactlyOnceWith({ types, multiple: false });
  });

  test('asks where to save, and saves there again without asking', async () => {
    const handle = browserHandle('b.tessary') as unknown as BrowserHandle;
    window.showOpenFilePicker = vi.fn();
    window.showSaveFilePicker = vi.fn(async () => handle);
    const first = await service.saveFile('one', { name: 'a' }, 'Untitled.words.tessary', WORDS_FILE_TYPE);
    expect(first).toEqual({ success: true, fileHandle: { name: 'b.tessary', handle } });
    expect(window.showSaveFilePicker).toHaveBeenCalledExactlyOnceWith({
      types,
      suggestedName: 'Untitled.words.tessary',
    });
    await service.saveFile('two', first.success ? first.fileHandle : undefined, 'b.tessary', WORDS_FILE_TYPE);
    expect(window.showSaveFilePicker).toHaveBeenCalledTimes(1);
    expect(handle.writable.write.mock.calls).toEqual([['one'], ['two']]);
    expect(handle.writable.close).toHaveBeenCalledTimes(2);
  });

  test("passes on the browser's own abort", async () => {
    const abort = new DOMException('The user aborted a request.', 'AbortError');
    window.showOpenFilePicker = vi.fn(async () => Promise.reject(abort));
    window.showSaveFilePicker = vi.fn(async () => Promise.reject(abort));
    await expect(service.openFile()).rejects.toBe(abort);
    await expect(service.saveFile('', undefined)).rejects.toBe(abort);
    expect(window.showSaveFilePicker).toHaveBeenCalledWith({ suggestedName: 'untitled' });
  });
});

describe('any other browser', () => {
  /** Answers the hidden file input as soon as the page opens it. */
  function answerInput(answer: (input: HTMLInputElement) => void) {
    const opened: HTMLInputElement[] = [];
    vi.spyOn(HTMLInputElement.prototype, 'click').mockImplementation(function (this: HTMLInputElement) {
      opened.push(this);
      queueMicrotask(() => answer(this));
    });
    return opened;
  }
  const choose = (files: unknown[]) => (input: HTMLInputElement) => {
    Object.defineProperty(input, 'files', { value: files });
    input.dispatchEvent(new Event('change'));
  };

  test('reads the file that was chosen in a hidden input, and removes the input', async () => {
    const opened = answerInput(choose([{ name: 'a.tessary', text: async () => 'text' }]));
    expect(await service.openFile(WORDS_FILE_TYPE)).toEqual({ fileHandle: { name: 'a.tessary' }, content: 'text' });
    expect(opened[0]!).toMatchObject({ type: 'file', accept: '.words.tessary,.tessary', hidden: true });
    expect(document.querySelector('input')).toBeNull();
  });

  test('accepts every file without a type', async () => {
    const opened = answerInput(choose([{ name: 'a', text: async () => '' }]));
    await service.openFile();
    expect(opened[0]!.accept).toBe('*');
  });

  test('rejects when nothing was chosen', async () => {
    answerInput(choose([]));
    await expect(service.openFile()).rejects.toThrow(new Error('No file selected'));
  });

  test('rejects with a cancel when the dialog was dismissed', async () => {
    answerInput((input) => input.dispatchEvent(new Event('cancel')));
    await expect(service.openFile()).rejects.toThrow(new Error('user-cancelled'));
    expect(document.querySelector('input')).toBeNull();
  });

  test.each([
    ['a.tessary', 'a.tessary'],
    [undefined, 'untitled'],
  ])('downloads under the suggested name %s', async (suggestedName, expected) => {
    const blobs: Blob[] = [];
    const names: string[] = [];
    URL.createObjectURL = (blob: Blob) => {
      blobs.push(blob);
      return 'blob:page';
    };
    vi.spyOn(HTMLAnchorElement.prototype, 'click').mockImplementation(function (this: HTMLAnchorElement) {
      names.push(this.download);
    });
    expect(await service.saveFile('text', { name: 'x' }, suggestedName, WORDS_FILE_TYPE)).toEqual({ success: true });
    expect(names).toEqual([expected]);
    expect(blobs[0]!.type).toBe('application/json');
    expect(blobs[0]!.size).toBe(4);
  });
});
