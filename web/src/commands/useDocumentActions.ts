import { useMemo, useRef } from 'react';
import { useNavigate } from 'react-router';
import { closeDocument, newDocument, openDocument, saveDocument, saveDocumentAs } from '../actions/documentActions';
import type { DocumentAction } from './shortcuts';

/** What the user can do with the document as a whole. The same functions for as long as the component lives. */
export function useDocumentActions(): Record<DocumentAction, () => void> {
  const navigate = useRef(useNavigate());
  return useMemo(
    () => ({
      new: () => void newDocument(navigate.current),
      open: () => void openDocument(navigate.current),
      save: () => void saveDocument(),
      saveAs: () => void saveDocumentAs(),
      close: () => void closeDocument(),
    }),
    [],
  );
}
