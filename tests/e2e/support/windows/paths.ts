import { root } from '../shared/paths';

/** The program under test. */
export const executable = `${root}build/windows/tessary.exe`;
/** Drives Chromium instead of the browser runtime; built with the program. */
export const fakeWebView2Dll = `${root}build/windows/fake_webview2/EmbeddedBrowserWebView.dll`;
/** Prints what stands in the windows that wine shows; built with the program. */
export const windowReader = `${root}build/windows/window_reader/window_reader.exe`;
/** Where wine's folders are made: one for all, and a copy for each worker. */
export const wineFolder = `${root}build/wine`;
