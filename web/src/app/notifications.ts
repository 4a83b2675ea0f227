import { enqueueSnackbar } from 'notistack';

/** Tells the user that something failed. */
export function showError(message: string): void {
  enqueueSnackbar(message, { variant: 'error' });
}

/** Tells the user that an input was refused and why. */
export function showWarning(message: string): void {
  enqueueSnackbar(message, { variant: 'warning' });
}
