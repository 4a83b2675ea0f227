import { isCppBackend } from './hostFlags';

/** What the native host puts behind the page's address when it loads the page again because its process died. */
const MARK = '?restored';

/** Whether that is why this page was loaded. Later reloads have other reasons, so the mark is taken off at once. */
export const isAfterCrash = isCppBackend && takeMark();

function takeMark(): boolean {
  if (location.search !== MARK) return false;
  history.replaceState(history.state, '', location.pathname);
  return true;
}
