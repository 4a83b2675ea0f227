/*
 * Which host the page runs in. Computed once, when the bundle loads: a host that announces itself later stays
 * unrecognised. The order matters, because an editor extension hands its interface out only once.
 */

if (typeof globalThis !== 'undefined' && typeof window === 'undefined') {
  // Lets code that reads window.* load outside a browser.
  (globalThis as { window?: unknown }).window = {};
}

/** The editor extension's interface; null in every other host. */
export const vsCodeApi = typeof acquireVsCodeApi === 'function' ? acquireVsCodeApi() : null;
export const isVsCode = vsCodeApi !== null;

/** The native desktop host with its bound file functions. */
export const isCppBackend = window.tessary?.backend?.implementation === 'cpp';

/** An installed page without browser controls. */
export const isStandalone = detectStandalone();

/** The native host runs from a store package, which brings its own updates. */
export const isMsStorePackage = isNonEmptyString(window.tessary?.backend?.msPackageName);

/** The host opens links outside the page on request. */
export const hasExternalUrlOpener = typeof window.openExternalUrl === 'function';

function detectStandalone(): boolean {
  const { matchMedia, navigator } = window as Partial<Window>;
  if (!matchMedia || !navigator) return false;
  return matchMedia.call(window, '(display-mode: standalone)').matches || navigator.standalone === true;
}

function isNonEmptyString(value: unknown): boolean {
  return typeof value === 'string' && value.length > 0;
}
