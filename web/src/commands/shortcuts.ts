import { isCppBackend, isVsCode } from '../host/hostFlags';

export type DocumentAction = 'new' | 'open' | 'save' | 'saveAs' | 'close';

/** Keys of each action. A browser keeps those for new and closed tabs to itself, an editor keeps all of them. */
const KEYS: Record<DocumentAction, { key: string; shift: boolean; available: boolean }> = {
  new: { key: 'n', shift: false, available: isCppBackend },
  open: { key: 'o', shift: false, available: !isVsCode },
  save: { key: 's', shift: false, available: !isVsCode },
  saveAs: { key: 's', shift: true, available: !isVsCode },
  close: { key: 'w', shift: false, available: isCppBackend },
};

/** The keys of an action as the user knows them, such as "Ctrl+S"; undefined where the host keeps them. */
export function shortcutLabel(action: DocumentAction): string | undefined {
  const { key, shift, available } = KEYS[action];
  return available ? `Ctrl+${shift ? 'Shift+' : ''}${key.toUpperCase()}` : undefined;
}

/** The action that a pressed key asks for, if any. */
export function actionOfKey(event: KeyboardEvent): DocumentAction | undefined {
  if (event.altKey || !(event.ctrlKey || event.metaKey)) return undefined;
  return (Object.keys(KEYS) as DocumentAction[]).find((action) => {
    const { key, shift, available } = KEYS[action];
    return available && event.shiftKey === shift && event.key.toLowerCase() === key;
  });
}
