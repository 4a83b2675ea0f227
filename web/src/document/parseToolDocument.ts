import { displayName } from '../../package.json';
import { i18next } from '../i18n';
import { showError } from '../ui/notifications';
import type { Loading } from './loading';
import type { Tool, WordsDocumentData } from './schema';
import { isSheetData, isToolDocumentHeader, isWordsDocument } from './wordsDocument';

export type ParsedToolDocument =
  { success: true; data: WordsDocumentData; tool: Tool; navigationRoute: string } | { success: false; error: string };

type Header = { tool: Tool; version: number };

/**
 * Checks a document of any tool. The first check that fails ends it.
 * @param data - JSON text or an object that was parsed already
 * @param showErrorSnack - also show a failure as a notification
 * @returns the object as it stands with its tool and that tool's route, or the message for the user
 */
export function parseToolDocument(data: unknown, showErrorSnack = true): ParsedToolDocument {
  const header = readHeader(data);
  if (!header.success) return finish(header, showErrorSnack);
  return finish(outcome(header.data, isWordsDocument(header.data)), showErrorSnack);
}

/** Does the same with pauses, so that the page stays alive while a huge document is checked. */
export async function parseToolDocumentInSteps(
  data: unknown,
  loading: Loading,
  showErrorSnack = true,
): Promise<ParsedToolDocument> {
  const header = readHeader(data);
  if (!header.success) return finish(header, showErrorSnack);
  const { sheets } = header.data as { sheets?: unknown };
  const isWords = Array.isArray(sheets) && (await loading.visitAll(sheets, 0, 0.5, isSheetData));
  return finish(outcome(header.data, isWords), showErrorSnack);
}

function readHeader(data: unknown): { success: true; data: Header } | { success: false; error: string } {
  const parsed = typeof data === 'string' ? parseJson(data) : { value: data };
  if (!parsed) return { success: false, error: i18next.t('messages.document.load.invalidJson') };
  if (isToolDocumentHeader(parsed.value)) return { success: true, data: parsed.value };
  return { success: false, error: i18next.t('messages.document.load.invalidStructure', { tool: displayName }) };
}

function outcome(data: Header, isWords: boolean): ParsedToolDocument {
  if (!isWords) return { success: false, error: i18next.t('messages.document.load.notToolDocument') };
  return { success: true, data: data as WordsDocumentData, tool: data.tool, navigationRoute: `/tools/${data.tool}` };
}

function finish<Result extends { success: true } | { success: false; error: string }>(
  result: Result,
  showErrorSnack: boolean,
): Result {
  if (!result.success && showErrorSnack) showError(result.error);
  return result;
}

/** Boxed, because null is a valid JSON text. Also fails where the engine cannot nest as deep as the text does. */
function parseJson(text: string): { value: unknown } | undefined {
  try {
    return { value: JSON.parse(text) };
  } catch {
    return undefined;
  }
}
