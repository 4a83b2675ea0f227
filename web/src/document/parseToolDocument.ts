import { i18next } from '../i18n';
import { showError } from '../app/notifications';
import { displayName } from '../../package.json';
import type { Tool, WordsDocumentData } from './schema';
import { isToolDocumentHeader, isWordsDocument } from './wordsDocument';

export type ParsedToolDocument =
  { success: true; data: WordsDocumentData; tool: Tool; navigationRoute: string } | { success: false; error: string };

/**
 * Checks a document of any tool. The first check that fails ends it.
 * @param data - JSON text or an object that was parsed already
 * @param showErrorSnack - also show a failure as a notification
 * @returns the object as it stands with its tool and that tool's route, or the message for the user
 */
export function parseToolDocument(data: unknown, showErrorSnack = true): ParsedToolDocument {
  const result = check(data);
  if (!result.success && showErrorSnack) showError(result.error);
  return result;
}

function check(data: unknown): ParsedToolDocument {
  const parsed = typeof data === 'string' ? parseJson(data) : { value: data };
  if (!parsed) return { success: false, error: i18next.t('messages.document.load.invalidJson') };
  const { value } = parsed;
  if (!isToolDocumentHeader(value)) {
    return { success: false, error: i18next.t('messages.document.load.invalidStructure', { tool: displayName }) };
  }
  if (!isWordsDocument(value)) return { success: false, error: i18next.t('messages.document.load.notToolDocument') };
  return { success: true, data: value, tool: value.tool, navigationRoute: `/tools/${value.tool}` };
}

/** Boxed, because null is a valid JSON text. Also fails where the engine cannot nest as deep as the text does. */
function parseJson(text: string): { value: unknown } | undefined {
  try {
    return { value: JSON.parse(text) };
  } catch {
    return undefined;
  }
}
