import { useEffect, useRef, useState } from 'react';
import { useNavigate } from 'react-router';
import { followEditor } from '../actions/editorStartup';
import { isVsCode } from '../host/hostFlags';
import { openLaunchDocument, type StartupOutcome, type StartupTarget } from '../actions/nativeStartup';
import { useSheetsStore } from '../stores/sheetsStore';

/** Time for the start page to fade out after a document was opened, in milliseconds. */
const LEAVING_TIME = 1000;

/**
 * Opens, each time the start page mounts, the document that the host was started with.
 * @returns the text of what went wrong, and whether the page may show itself
 */
export function useStartupLoader(): { loadingError: string | undefined; isReady: boolean } {
  // Kept from the first render: the router gives a new function after each navigation, also after the one made here.
  const navigate = useRef(useNavigate());
  const [loadingError, setLoadingError] = useState<string>();
  const [isReady, setReady] = useState(false);

  useEffect(() => {
    let left = false;
    let timer: ReturnType<typeof setTimeout> | undefined;
    const load = useSheetsStore.getState().loadWordsDocument;
    void openStartDocument({ load, navigate: navigate.current }).then((outcome) => {
      if (left) return;
      setLoadingError(outcome.opened ? undefined : outcome.error);
      if (outcome.opened) timer = setTimeout(() => setReady(true), LEAVING_TIME);
      else setReady(true);
    });
    return () => {
      left = true;
      clearTimeout(timer);
    };
  }, []);

  return { loadingError, isReady };
}

/** An editor hands its document over by itself, so the page waits for it as if it were opening one. */
async function openStartDocument(target: StartupTarget): Promise<StartupOutcome> {
  if (!isVsCode) return openLaunchDocument(target);
  followEditor(target);
  return { opened: true };
}
