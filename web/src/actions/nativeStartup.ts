import { displayName } from '../../package.json';
import { type Loading, withLoading } from '../document/loading';
import { parseToolDocumentInSteps } from '../document/parseToolDocument';
import { getFileNameFromPath } from '../host/fileHandle';
import { readLaunchFile } from '../host/launchRead';
import { pathForHost } from '../host/nativePath';
import { i18next } from '../i18n';
import { failure, type Result, success } from '../model/result';
import { useSheetsStore } from '../stores/sheetsStore';
import type { Navigate } from './documentActions';
import { requestFirstWordFocus } from './firstWordFocus';

/** Whether the native host has something to open or to report; if not, there is nothing to wait for. */
export function hasLaunchOrder(): boolean {
  const { error, filePath } = window.tessary?.args ?? {};
  return Boolean(error || filePath);
}

/**
 * Opens the document that the native host was started with. Never rejects.
 * @returns whether the host named one, which is then shown; or the text of what went wrong
 */
export async function openLaunchDocument(navigate: Navigate): Promise<Result<boolean>> {
  const args = window.tessary?.args;
  if (!args) return success(false);
  if (args.error) {
    return failure(i18next.t('messages.startup.failed', { app: displayName, reason: args.error }));
  }
  if (!args.filePath || !window.readFile) return success(false);
  try {
    const { filePath: path } = args;
    const answer = await readLaunchFile(pathForHost(path), window.readFile);
    if (!answer.success || !answer.data) {
      return unreadable(answer.error || i18next.t('messages.startup.unknownError'));
    }
    const { data } = answer;
    // What the host took to read is no time in which the page could not paint.
    return await withLoading((loading) => openText(data, path, navigate, loading));
  } catch (error) {
    return unreadable(error instanceof Error ? error.message : String(error));
  }
}

async function openText(text: string, path: string, navigate: Navigate, loading: Loading): Promise<Result<boolean>> {
  const parsed = await parseToolDocumentInSteps(text, loading, false);
  if (!parsed.success) return failure(parsed.error);
  await useSheetsStore.getState().loadWordsDocument(parsed.data, { path, name: getFileNameFromPath(path) }, loading);
  requestFirstWordFocus();
  await navigate(parsed.navigationRoute);
  return success(true);
}

function unreadable(reason: string): Result<never> {
  return failure(i18next.t('messages.startup.unreadable', { reason }));
}
