import { fileURLToPath } from 'node:url';

const root = fileURLToPath(new URL('../../../', import.meta.url));

/** The program under test. */
export const executable = `${root}build/windows/tessary.exe`;
/** Stands in for the browser runtime; built with the program. */
export const testRuntimeDll = `${root}build/windows/test_runtime/EmbeddedBrowserWebView.dll`;
/** Prints what stands in the windows that wine shows; built with the program. */
export const windowReader = `${root}build/windows/window_reader/window_reader.exe`;
/** Where wine's folders are made: one for all, and a copy for each worker. */
export const wineFolder = `${root}build/wine`;
