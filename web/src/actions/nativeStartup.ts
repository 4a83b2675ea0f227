import { displayName } from '../../package.json';
import { withLoading, type Loading } from '../document/loading';
import { parseToolDocumentInSteps } from '../document/parseToolDocument';
import type { WordsDocumentData } from '../document/schema';
import { i18next } from '../i18n';
import { getFileNameFromPath, type FileHandle } from '../host/fileHandle';

/** What becomes of a document that the host hands over at start. */
export interface StartupTarget {
  load(data: WordsDocumentData, file: FileHandle | undefined, loading: Loading): Promise<void>;
  navigate(route: string): void | Promise<void>;
}

/** Whether a document was opened, or what to tell the user; neither when the host names none. */
export type StartupOutcome = { opened: true } | { opened: false; error?: string };

/** Opens the document that the native host was started with. Never rejects. */
export async function openLaunchDocument(target: StartupTarget): Promise<StartupOutcome> {
  const args = window.tessary?.args;
  if (!args) return { opened: false };
  if (args.error) {
    return { opened: false, error: i18next.t('messages.startup.failed', { app: displayName, reason: args.error }) };
  }
  if (!args.filePath || !window.readFile) return { opened: false };
  try {
    const { filePath } = args;
    const { readFile } = window;
    return await withLoading((loading) => openFile(filePath, readFile, target, loading));
  } catch (error) {
    return unreadable(error instanceof Error ? error.message : String(error));
  }
}

async function openFile(
  path: string,
  readFile: NonNullable<Window['readFile']>,
  target: StartupTarget,
  loading: Loading,
): Promise<StartupOutcome> {
  const answer = await readFile(path);
  if (!answer.success || !answer.data) {
    return unreadable(answer.error || i18next.t('messages.startup.unknownError'));
  }
  const parsed = await parseToolDocumentInSteps(answer.data, loading, false);
  if (!parsed.success) return { opened: false, error: parsed.error };
  await target.load(parsed.data, { path, name: getFileNameFromPath(path) }, loading);
  await target.navigate(parsed.navigationRoute);
  return { opened: true };
}

function unreadable(reason: string): StartupOutcome {
  return { opened: false, error: i18next.t('messages.startup.unreadable', { reason }) };
}
