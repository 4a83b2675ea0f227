import { useEffect, useMemo, useRef } from 'react';
import { flushSync } from 'react-dom';
import { useNavigate } from 'react-router';
import { isVsCode } from '../host/hostFlags';
import { runCommand } from './command';
import { DOCUMENT_COMMANDS, type DocumentTarget, PAGE_COMMANDS } from './documentCommands';
import { FRAME_COMMANDS } from './frameCommands';
import { HISTORY_COMMANDS } from './historyCommands';

const EVERYWHERE = [...DOCUMENT_COMMANDS, ...HISTORY_COMMANDS, ...PAGE_COMMANDS, ...FRAME_COMMANDS];

/**
 * What the document's commands act on. The same object for as long as the component lives. A route that is shown already
 * gets no second entry in the browser's history; an editor's web view has one route after the other, and none to go back to.
 */
export function useDocumentTarget(): DocumentTarget {
  const navigate = useRef(useNavigate());
  return useMemo(
    () => ({
      navigate(route) {
        if (location.pathname === route && !isVsCode) return;
        // With the next frame: a document that is there waits for no other one.
        flushSync(() => void navigate.current(route, { replace: isVsCode }));
      },
    }),
    [],
  );
}

/** Lets the keyboard do what the document bar does, wherever the focus is. */
export function useDocumentKeys(): void {
  const target = useDocumentTarget();
  useEffect(() => {
    const onKeyDown = (event: KeyboardEvent) => void runCommand(EVERYWHERE, event, target);
    window.addEventListener('keydown', onKeyDown, { capture: true });
    return () => window.removeEventListener('keydown', onKeyDown, { capture: true });
  }, [target]);
}
