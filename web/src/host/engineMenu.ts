import { isCppBackend } from './hostFlags';

/**
 * Keeps WebView2's own menu away where it is about the page as a whole: it leads away from the page there, by Back and
 * Reload, and the host has no say in it. It stays in text fields, over links and selected text, and with Shift.
 */
export function restrictEngineMenu(): void {
  const { chrome } = window as { chrome?: { webview?: unknown } };
  if (!isCppBackend || !chrome?.webview) return;
  addEventListener('contextmenu', (event) => {
    if (!event.shiftKey && isAboutPage(event.target as HTMLElement)) event.preventDefault();
  });
}

function isAboutPage(target: HTMLElement): boolean {
  const isTextField = typeof (target as HTMLInputElement).selectionStart === 'number';
  return !isTextField && !target.closest('a[href]') && getSelection()?.isCollapsed !== false;
}
