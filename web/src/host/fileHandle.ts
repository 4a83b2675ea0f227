/** Where the open document lives, as far as the page knows. */
export interface FileHandle {
  /** File name without its folder. */
  name: string;
  /** Full path; only the native host knows it. */
  path?: string;
  /** A browser's right to the file; only where the File System Access interface exists. */
  handle?: FileSystemFileHandle;
}

/** The last piece of a path with either kind of separator; "unknown" when that piece is empty. */
export function getFileNameFromPath(path: string): string {
  return path.split(/[/\\]/).at(-1) || 'unknown';
}
