import { displayName } from '../../package.json';
import { parseToolDocument } from '../document/parseToolDocument';
import type { WordsDocumentData } from '../document/schema';
import { i18next } from '../i18n';
import { getFileNameFromPath, type FileHandle } from './fileHandle';

/** What the start page does with the document that the host names. */
export interface StartupTarget {
  load(data: WordsDocumentData, file: FileHandle): Promise<void>;
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
    return await openFile(args.filePath, window.readFile, target);
  } catch (error) {
    return unreadable(error instanceof Error ? error.message : String(error));
  }
}

async function openFile(
  path: string,
  readFile: NonNullable<Window['readFile']>,
  target: StartupTarget,
): Promise<StartupOutcome> {
  const answer = await readFile(path);
  if (!answer.success || !answer.data) {
    return unreadable(answer.error || i18next.t('messages.startup.unknownError'));
  }
  const parsed = parseToolDocument(answer.data, false);
  if (!parsed.success) return { opened: false, error: parsed.error };
  await target.load(parsed.data, { path, name: getFileNameFromPath(path) });
  await target.navigate(parsed.navigationRoute);
  return { opened: true };
}

function unreadable(reason: string): StartupOutcome {
  return { opened: false, error: i18next.t('messages.startup.unreadable', { reason }) };
}
