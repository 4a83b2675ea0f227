import { useEffect } from 'react';
import { useDiscardPrompt } from '../actions/unsavedChangesPrompt';
import { useSheetsStore } from '../stores/sheetsStore';
import { actionOfKey, type DocumentAction } from './shortcuts';
import { useDocumentActions } from './useDocumentActions';

/** Lets the keyboard do what the document bar does, wherever the focus is. */
export function useShortcuts(): void {
  const actions = useDocumentActions();
  useEffect(() => {
    const onKeyDown = (event: KeyboardEvent) => {
      const action = actionOfKey(event);
      if (!action) return;
      event.preventDefault(); // also where the action is not possible now: the browser's own would surprise
      if (!event.repeat && isPossible(action)) actions[action]();
    };
    window.addEventListener('keydown', onKeyDown, { capture: true });
    return () => window.removeEventListener('keydown', onKeyDown, { capture: true });
  }, [actions]);
}

function isPossible(action: DocumentAction): boolean {
  if (useDiscardPrompt.getState().answer) return false;
  const { documentFile, isUnsaved } = useSheetsStore.getState();
  if (action === 'new' || action === 'open') return true;
  return documentFile !== null && (action !== 'save' || isUnsaved);
}
