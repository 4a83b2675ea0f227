import type { OptionsObject, SnackbarKey, SnackbarProvider } from 'notistack';
import { createElement } from 'react';
import { i18next } from '../i18n';
import { briefMessage } from './briefMessage';
import { NoticeActions, type Offer } from './NoticeActions';

interface Notice {
  readonly message: string;
  readonly variant: NonNullable<OptionsObject['variant']>;
  readonly details?: WarningDetails;
}

/** The place on the page where notifications appear, from the first one on. */
let place: SnackbarProvider | null = null;
let makePlace: (() => void) | undefined;
/** What came before there was a place. */
let waiting: Notice[] = [];

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
  show({ message, variant: 'error' });
}

/** Shows that an input was refused and why. */
export function showWarning(message: string, details?: WarningDetails): void {
  show({ message, variant: 'warning', ...(details && { details }) });
}

export function areNoticesOpen(): boolean {
  return open.size + waiting.length > 0;
}

export function closeNotices(): void {
  waiting = [];
  for (const key of open.keys()) close(key);
}

/** Has `make` put a place for notifications on the page once there is one to show. @returns what ends that */
export function whenNoticesAreWanted(make: () => void): () => void {
  makePlace = make;
  return () => (makePlace = undefined);
}

/** Shows what waits for a place in `next`, and from now on everything. */
export function setNoticePlace(next: SnackbarProvider | null): void {
  place = next;
  if (!place) return;
  const waited = waiting;
  waiting = [];
  waited.forEach(show);
}

function show(notice: Notice): void {
  if (place) return showIn(place, notice);
  if (!makePlace) return;
  waiting.push(notice);
  makePlace();
}

function showIn(provider: SnackbarProvider, { message, variant, details: { about, offers = [] } = {} }: Notice): void {
  const text = briefMessage(message);
  container()?.style.removeProperty('bottom');
  if (about) requestAnimationFrame(() => keepClearOf(about));
  if ([...open.values()].includes(text)) return;
  const closeLabel = i18next.t('frame.closeNotice');
  const key = provider.enqueueSnackbar(text, {
    variant,
    // The library counts a notification as shown while it folds away.
    preventDuplicate: false,
    action: (id) => createElement(NoticeActions, { id, offers, closeLabel, onClose: close }),
    onClose: (_event, _reason, id) => id !== undefined && open.delete(id),
  });
  open.set(key, text);
}

function close(key: SnackbarKey): void {
  open.delete(key);
  place?.closeSnackbar(key);
}

function container(): HTMLElement | null {
  return document.querySelector<HTMLElement>('.notistack-SnackbarContainer');
}

/** Lifts the notifications above a field that they would cover. */
function keepClearOf(about: Element): void {
  const shown = container();
  if (!shown) return;
  const notices = shown.getBoundingClientRect();
  // They unfold only now; their content has its full height already.
  const contents = [...shown.querySelectorAll<HTMLElement>('.notistack-MuiContent')];
  const height = contents.reduce((sum, { offsetHeight }) => sum + offsetHeight + MARGIN, 0);
  const field = about.getBoundingClientRect();
  const isCovered = field.right > notices.left && field.bottom > notices.bottom - height && field.top < notices.bottom;
  const bottom = innerHeight - field.top + CLEARANCE;
  if (isCovered && bottom + height <= innerHeight) shown.style.bottom = `${bottom}px`;
}
