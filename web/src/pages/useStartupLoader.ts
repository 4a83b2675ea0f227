import { useLayoutEffect, useState } from 'react';
import type { Navigate } from '../actions/documentActions';
import { followEditor } from '../actions/editorStartup';
import { hasLaunchOrder, openLaunchDocument } from '../actions/nativeStartup';
import { hasRestoredWork, showRestoredWork } from '../actions/restoredWork';
import { useDocumentTarget } from '../commands/useDocumentCommands';
import { isVsCode } from '../host/hostFlags';
import { type Result, success } from '../model/result';
import { useSheetsStore } from '../stores/sheetsStore';

/** Time for the start page to fade out after a document was opened, in milliseconds. */
const LEAVING_TIME = 1000;

/**
 * Opens, each time the start page mounts, the document that the host was started with.
 * @returns the text of what went wrong, and whether the page may show itself
 */
export function useStartupLoader(): { loadingError: string | undefined; isReady: boolean } {
  const { navigate } = useDocumentTarget();
  const [loadingError, setLoadingError] = useState<string>();
  const [isReady, setReady] = useState(hasNothingToOpen);

  // Before the first frame, which would be an empty one.
  useLayoutEffect(() => {
    let left = false;
    let timer: ReturnType<typeof setTimeout> | undefined;
    void openStartDocument(navigate).then((outcome) => {
      if (left) return;
      setLoadingError(outcome.ok ? undefined : outcome.reason);
      if (outcome.ok && outcome.value) timer = setTimeout(() => setReady(true), LEAVING_TIME);
      else setReady(true);
    });
    return () => {
      left = true;
      clearTimeout(timer);
    };
  }, [navigate]);

  return { loadingError, isReady };
}

function hasNothingToOpen(): boolean {
  return !isVsCode && !hasRestoredWork() && !hasLaunchOrder();
}

/** An editor hands its document over by itself, so the page waits for it as if it were opening one. */
async function openStartDocument(navigate: Navigate): Promise<Result<boolean>> {
  if (await showRestoredWork(navigate)) return success(useSheetsStore.getState().documentFile !== null);
  if (!isVsCode) return openLaunchDocument(navigate);
  followEditor(navigate);
  return success(true);
}
