import { USER_CANCELLED } from './nativeErrors';

/** Distinguishes a dialog that the user dismissed, which needs no message, from a real failure. */
export function isDialogAbortError(error: unknown): boolean {
  if (error instanceof DOMException && error.name === 'AbortError') return true;
  return error instanceof Error && error.message === USER_CANCELLED;
}
