import { isAfterCrash } from './reloadMark';

type ReadFile = NonNullable<Window['readFile']>;

/** The file that the native host was started with, on its way while the page's script is still at its beginning. */
let begun = begin();

function begin(): { path: string; answer: ReturnType<ReadFile> } | undefined {
  const path = window.tessary?.args?.filePath;
  const { readFile } = window;
  // A path with U+007F gets no answer; after a crash the sheets come from the record.
  if (!path || window.tessary?.args?.error || !readFile || isAfterCrash || path.includes('\u007f')) return undefined;
  const answer = new Promise<Awaited<ReturnType<ReadFile>>>((resolve) => resolve(readFile(path)));
  answer.catch(() => undefined); // whoever takes it handles this
  return { path, answer };
}

/** Reads a file of the native host; the one that the page was started with is on its way already, the first time. */
export function readLaunchFile(path: string, readFile: ReadFile): ReturnType<ReadFile> {
  const isBegun = begun?.path === path;
  const { answer } = begun ?? {};
  begun = undefined;
  return isBegun && answer ? answer : readFile(path);
}
