/** The codes with which the native host's functions report a failure. */
export type NativeErrorCode =
  'invalid-arguments' | 'file-not-found' | 'file-read-failed' | 'file-write-failed' | 'user-cancelled';

/** For a dialog that the user left without choosing; the page uses it for its own dialogs, too. */
export const USER_CANCELLED = 'user-cancelled' satisfies NativeErrorCode;

/** For a text that could not be written. */
export const FILE_WRITE_FAILED = 'file-write-failed' satisfies NativeErrorCode;
