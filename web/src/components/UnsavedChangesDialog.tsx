import Button from '@mui/joy/Button';
import DialogActions from '@mui/joy/DialogActions';
import DialogContent from '@mui/joy/DialogContent';
import DialogTitle from '@mui/joy/DialogTitle';
import Modal from '@mui/joy/Modal';
import ModalDialog from '@mui/joy/ModalDialog';
import { useTranslation } from 'react-i18next';
import { useSnapshot } from 'valtio';
import { unsavedChangesPrompt } from '../actions/unsavedChangesPrompt';

/** The question before unsaved changes are lost. */
export function UnsavedChangesDialog() {
  const { t } = useTranslation();
  const { answer } = useSnapshot(unsavedChangesPrompt);
  if (!answer) return null;
  return (
    <Modal open onClose={() => answer(false)}>
      <ModalDialog role="alertdialog" sx={{ maxWidth: '26rem' }}>
        <DialogTitle>{t('dialogs.unsaved.title')}</DialogTitle>
        <DialogContent>{t('dialogs.unsaved.text')}</DialogContent>
        <DialogActions>
          <Button color="danger" onClick={() => answer(true)}>
            {t('ui.discard')}
          </Button>
          <Button autoFocus variant="plain" color="neutral" onClick={() => answer(false)}>
            {t('ui.cancel')}
          </Button>
        </DialogActions>
      </ModalDialog>
    </Modal>
  );
}
