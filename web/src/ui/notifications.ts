import type { OptionsObject, SnackbarKey, SnackbarProvider } from 'notistack';
import { createElement, createRef } from 'react';
import { i18next } from '../i18n';
import { briefMessage } from './briefMessage';
import { NoticeActions, type Offer } from './NoticeActions';

/** The place on the page where notifications appear. */
export const notificationPlace = createRef<SnackbarProvider>();

/** Between a field and the notifications about it, in pixels. */
const CLEARANCE = 8;
/** Around each notification. */
const MARGIN = 12;

/** The messages that are shown or wait for room, by their keys. */
const open = new Map<SnackbarKey, string>();

interface WarningDetails {
  /** What the warning is about. Notifications do not cover it, as far as the window has room. */
  readonly about?: Element;
  readonly offers?: readonly Offer[];
}

/** Shows that something failed. */
export function showError(message: string): void {
  show(message, { variant: 'error' });
}

/** Shows that an input was refused and why. */
export function showWarning(message: string, { about, offers }: WarningDetails = {}): void {
  show(message, { variant: 'warning' }, offers);
  if (about) requestAnimationFrame(() => keepClearOf(about));
}

export function areNoticesOpen(): boolean {
  return open.size > 0;
}

export function closeNotices(): void {
  for (const key of open.keys()) close(key);
}

function show(message: string, options: OptionsObject, offers: readonly Offer[] = []): void {
  const provider = notificationPlace.current;
  if (!provider) return;
  const text = briefMessage(message);
  place()?.style.removeProperty('bottom');
  if ([...open.values()].includes(text)) return;
  const closeLabel = i18next.t('frame.closeNotice');
  const key = provider.enqueueSnackbar(text, {
    ...options,
    // The library counts a notification as shown while it folds away.
    preventDuplicate: false,
    action: (id) => createElement(NoticeActions, { id, offers, closeLabel, onClose: close }),
    onClose: (_event, _reason, id) => id !== undefined && open.delete(id),
  });
  open.set(key, text);
}

function close(key: SnackbarKey): void {
  open.delete(key);
  notificationPlace.current?.closeSnackbar(key);
}

function place(): HTMLElement | null {
  return document.querySelector<HTMLElement>('.notistack-SnackbarContainer');
}

/** Lifts the notifications above a field that they would cover. */
function keepClearOf(about: Element): void {
  const container = place();
  if (!container) return;
  const notices = container.getBoundingClientRect();
  // They unfold only now; their content has its full height already.
  const contents = [...container.querySelectorAll<HTMLElement>('.notistack-MuiContent')];
  const height = contents.reduce((sum, { offsetHeight }) => sum + offsetHeight + MARGIN, 0);
  const field = about.getBoundingClientRect();
  const isCovered = field.right > notices.left && field.bottom > notices.bottom - height && field.top < notices.bottom;
  const bottom = innerHeight - field.top + CLEARANCE;
  if (isCovered && bottom + height <= innerHeight) container.style.bottom = `${bottom}px`;
}
