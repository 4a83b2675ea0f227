import { type KeyboardEvent, useRef } from 'react';
import { useTranslation } from 'react-i18next';
import { runCommand } from '../commands/command';
import { FIELD_COMMANDS } from '../commands/fieldCommands';
import { parseSheetName } from '../model/sheet/sheetNames';
import { useSheetsStore } from '../stores/sheetsStore';
import { showWarning } from '../ui/notifications';
import styles from './SheetNameEditor.module.css';

interface SheetNameEditorProps {
  sheetId: string;
  name: string;
  onDone: () => void;
}

/** A field over a tab that changes its sheet's name. Enter and leaving the field take the name, Escape drops it. */
export function SheetNameEditor({ sheetId, name, onDone }: SheetNameEditorProps) {
  const { t } = useTranslation();
  const isDone = useRef(false);

  const finish = (text: string | undefined) => {
    if (isDone.current) return; // removing the field makes it lose the focus
    const parsed = text === undefined || text === name ? undefined : parseSheetName(text);
    if (parsed && !parsed.ok) {
      showWarning(parsed.reason);
      return;
    }
    isDone.current = true;
    if (parsed) useSheetsStore.getState().updateSheet(sheetId, { displayName: parsed.value });
    onDone();
  };
  const onKeyDown = (event: KeyboardEvent<HTMLInputElement>) => {
    if (event.nativeEvent.isComposing) return;
    const field = event.currentTarget;
    const target = { isAltered: () => true, commit: () => finish(field.value), restore: () => finish(undefined) };
    runCommand(FIELD_COMMANDS, event, target);
  };
  const onBlur = (text: string) => finish(text.trim() === '' ? undefined : text);

  return (
    <input
      autoFocus
      aria-label={t('sheets.rename')}
      defaultValue={name}
      onFocus={(event) => event.currentTarget.select()}
      onKeyDown={onKeyDown}
      onBlur={(event) => onBlur(event.currentTarget.value)}
      className={styles.field}
    />
  );
}
