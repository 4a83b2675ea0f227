import type { FileType } from '../document/fileType';
import { openInBrowser, openThroughInput, saveAsDownload, saveInBrowser } from './browserFiles';
import { type FileHandle, getFileNameFromPath } from './fileHandle';
import { isCppBackend, isVsCode } from './hostFlags';
import { FILE_WRITE_FAILED, USER_CANCELLED } from './nativeErrors';
import { pathForHost } from './nativePath';

export interface OpenedFile {
  fileHandle: FileHandle;
  content: string;
}

/** Where a text was saved; only the native host reports a failure this way instead of throwing. */
export type SaveOutcome = { success: true; fileHandle?: FileHandle } | { success: false; error: string };

const NO_NATIVE_DIALOGS = 'C++ backend file dialog binding not available';
const UNTITLED = 'untitled';

/** Opens and saves files in whatever host the page runs in. A dialog that the user dismissed is thrown as an abort. */
export class FileService {
  /** The browser can hand out lasting rights to files. */
  get supportsFSA(): boolean {
    return 'showOpenFilePicker' in window && 'showSaveFilePicker' in window;
  }

  /** Lets the user choose a file and reads it. Throws when there is nothing to read or the user cancelled. */
  async openFile(type?: FileType): Promise<OpenedFile> {
    if (isCppBackend) return this.openFileCppBackend(type);
    if (isVsCode) throw new Error('VSCode file opening should be handled by the extension');
    if (this.supportsFSA) return openInBrowser(type);
    return openThroughInput(type);
  }

  /**
   * Writes a text to the file that `file` names, or to one that the user chooses.
   * @param file - the document's file; without a path or handle the user is asked
   * @param suggestedName - pre-filled in the dialog
   */
  async saveFile(
    content: string,
    file: FileHandle | undefined,
    suggestedName?: string,
    type?: FileType,
  ): Promise<SaveOutcome> {
    if (isCppBackend) return this.saveFileCppBackend(content, file?.path, suggestedName, type);
    if (isVsCode) throw new Error('VSCode file saving should be handled by the extension');
    const name = suggestedName || UNTITLED;
    if (this.supportsFSA) return { success: true, fileHandle: await saveInBrowser(content, file?.handle, name, type) };
    saveAsDownload(content, name);
    return { success: true };
  }

  async openFileCppBackend(type?: FileType): Promise<OpenedFile> {
    const { showOpenDialog, readFile } = window;
    if (!showOpenDialog || !readFile) throw new Error(NO_NATIVE_DIALOGS);

    const chosen = await showOpenDialog(type?.name, filterPattern(type));
    if (!chosen.success) throw new Error(chosen.error || 'Failed to open file');
    if (!chosen.path) throw new Error('No file path returned');

    const read = await readFile(pathForHost(chosen.path));
    if (!read.success) throw new Error(read.error || 'Failed to read file');
    return {
      fileHandle: { path: chosen.path, name: getFileNameFromPath(chosen.path) },
      content: read.data ?? '',
    };
  }

  /** Never throws for a dialog or write that failed: the failure is returned. Throws for a path that has no way to the host. */
  async saveFileCppBackend(
    content: string,
    path: string | undefined,
    suggestedName?: string,
    type?: FileType,
  ): Promise<SaveOutcome> {
    const { showSaveDialog, writeFile } = window;
    if (!showSaveDialog || !writeFile) throw new Error(NO_NATIVE_DIALOGS);

    let target = path;
    if (!target) {
      const extension = type?.defaultExt.replace(/^\./, '');
      const chosen = await showSaveDialog(suggestedName || UNTITLED, type?.name, filterPattern(type), extension);
      if (!chosen.success) return { success: false, error: chosen.error || USER_CANCELLED };
      target = chosen.path;
    }
    if (!target) return { success: false, error: 'No file path provided' };

    const written = await writeFile(pathForHost(target), content);
    if (!written.success) return { success: false, error: written.error || FILE_WRITE_FAILED };
    return { success: true, fileHandle: { path: target, name: getFileNameFromPath(target) } };
  }
}

/** The native dialogs' list of patterns, such as "*.txt;*.md"; undefined leaves the choice to the host. */
function filterPattern(type?: FileType): string | undefined {
  return type?.extensions.map((extension) => `*${extension}`).join(';');
}

export const fileService = new FileService();
