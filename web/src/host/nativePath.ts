import { i18next } from '../i18n';

/** A path that has no way to the native host; its message is for the user. */
export class UnusablePathError extends Error {}

/**
 * A path as the native host's functions can be given it.
 * @throws UnusablePathError for one with U+007F: the web view leaves a call that holds this character unanswered
 */
export function pathForHost(path: string): string {
  if (path.includes('\u007f')) throw new UnusablePathError(i18next.t('messages.file.path.unusable'));
  return path;
}

/** What to tell the user of a failure with a file: its own message where it has one, or the given text. */
export function fileFailureText(error: unknown, text: string): string {
  return error instanceof UnusablePathError ? error.message : text;
}
