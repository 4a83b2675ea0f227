import type { SnackbarProvider } from 'notistack';
import { createRef } from 'react';
import { briefMessage } from './briefMessage';

/** The place on the page where notifications appear. */
export const notificationPlace = createRef<SnackbarProvider>();

/** Shows that something failed. */
export function showError(message: string): void {
  notificationPlace.current?.enqueueSnackbar(briefMessage(message), { variant: 'error' });
}

/** Shows that an input was refused and why. */
export function showWarning(message: string): void {
  notificationPlace.current?.enqueueSnackbar(briefMessage(message), { variant: 'warning' });
}
