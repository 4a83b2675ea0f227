import Box from '@mui/joy/Box';
import Button from '@mui/joy/Button';
import Tooltip from '@mui/joy/Tooltip';
import Typography from '@mui/joy/Typography';
import { useTranslation } from 'react-i18next';
import { isVsCode } from '../host/hostFlags';
import { useSheetsStore } from '../stores/sheetsStore';
import { shortcutLabel, type DocumentAction } from '../commands/shortcuts';
import { useDocumentActions } from '../commands/useDocumentActions';

const ACTIONS: readonly DocumentAction[] = ['new', 'open', 'save', 'saveAs', 'close'];

/** What can be done with the open document, and its file's name. An editor has its own commands for that. */
export function DocumentBar() {
  const { t } = useTranslation();
  const actions = useDocumentActions();
  const hasDocument = useSheetsStore((store) => store.documentFile !== null);
  const isUnsaved = useSheetsStore((store) => store.isUnsaved);
  if (!hasDocument || isVsCode) return null;
  return (
    <Box
      role="toolbar"
      aria-label={t('frame.documentBar')}
      sx={{ display: 'flex', alignItems: 'center', gap: 0.25, paddingInline: 1, paddingBlock: 0.5 }}
    >
      {ACTIONS.map((action) => (
        <ActionButton
          key={action}
          action={action}
          disabled={action === 'save' && !isUnsaved}
          onClick={actions[action]}
        />
      ))}
      <FileName />
    </Box>
  );
}

interface ActionButtonProps {
  action: DocumentAction;
  disabled: boolean;
  onClick: () => void;
}

function ActionButton({ action, disabled, onClick }: ActionButtonProps) {
  const { t } = useTranslation();
  const button = (
    <Button size="sm" variant="plain" color="neutral" disabled={disabled} onClick={onClick}>
      {t(`ui.${action}`)}
    </Button>
  );
  const keys = shortcutLabel(action);
  if (!keys) return button;
  return (
    <Tooltip disableInteractive describeChild title={t('frame.shortcut', { action: t(`ui.${action}`), keys })}>
      {/* A disabled button tells nobody that the pointer is over it; its wrapper does. */}
      <span>{button}</span>
    </Tooltip>
  );
}

function FileName() {
  const { t } = useTranslation();
  const file = useSheetsStore((store) => store.documentFile);
  const isUnsaved = useSheetsStore((store) => store.isUnsaved);
  return (
    <Tooltip disableInteractive describeChild title={file?.path ?? t('messages.document.store.unstoredDocument')}>
      <Typography level="body-sm" noWrap sx={{ marginLeft: 'auto', paddingLeft: 2, minWidth: 0 }}>
        {file?.name}
        {isUnsaved && '*'}
      </Typography>
    </Tooltip>
  );
}
