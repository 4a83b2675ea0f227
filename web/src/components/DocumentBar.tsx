import cc from 'classcat';
import { useRef } from 'react';
import { useTranslation } from 'react-i18next';
import { type Command, shortcutLabel } from '../commands/command';
import { DOCUMENT_COMMANDS, type DocumentTarget } from '../commands/documentCommands';
import { useDocumentTarget } from '../commands/useDocumentCommands';
import { isVsCode } from '../host/hostFlags';
import { labelText } from '../i18n';
import { useSheetsStore } from '../stores/sheetsStore';
import buttonStyles from '../ui/button.module.css';
import textStyles from '../ui/text.module.css';
import { Tooltip } from '../ui/Tooltip';
import styles from './DocumentBar.module.css';
import { toolbarHandlers, useTabStop } from './useToolbar';

/** What can be done with the open document, and its file's name. An editor has its own commands for that. */
export function DocumentBar() {
  const { t } = useTranslation();
  const target = useDocumentTarget();
  const hasDocument = useSheetsStore((store) => store.documentFile !== null);
  const isUnsaved = useSheetsStore((store) => store.isUnsaved);
  const bar = useRef<HTMLDivElement>(null);
  useTabStop(bar);
  if (!hasDocument || isVsCode) return null;
  return (
    <div
      ref={bar}
      role="toolbar"
      aria-label={t('frame.documentBar')}
      data-region
      {...toolbarHandlers}
      className={styles.bar}
    >
      {DOCUMENT_COMMANDS.map((command) => (
        <CommandButton
          key={command.id}
          command={command}
          disabled={command.id === 'document.save' && !isUnsaved}
          onClick={() => command.run(target)}
        />
      ))}
      <FileName />
    </div>
  );
}

interface CommandButtonProps {
  command: Command<DocumentTarget>;
  disabled: boolean;
  onClick: () => void;
}

function CommandButton({ command, disabled, onClick }: CommandButtonProps) {
  const { t } = useTranslation();
  const label = labelText(command.label);
  const button = (
    <button type="button" className={buttonStyles.button} disabled={disabled} onClick={onClick}>
      {label}
    </button>
  );
  const keys = shortcutLabel(command);
  if (!keys) return button;
  return (
    <Tooltip describes text={t('frame.shortcut', { action: label, keys })}>
      {button}
    </Tooltip>
  );
}

const FILE_NAME = { marginLeft: 'auto' };

function FileName() {
  const { t } = useTranslation();
  const file = useSheetsStore((store) => store.documentFile);
  const isUnsaved = useSheetsStore((store) => store.isUnsaved);
  const hasPlace = file?.path !== undefined || file?.handle !== undefined;
  return (
    <Tooltip describes text={file?.path ?? t('messages.document.store.unstoredDocument')} style={FILE_NAME}>
      <p className={cc([textStyles.small, styles.fileName, !hasPlace && styles.unstored])}>
        {file?.name}
        {isUnsaved && '*'}
      </p>
    </Tooltip>
  );
}
