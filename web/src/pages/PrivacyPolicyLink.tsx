import Modal from '@mui/joy/Modal';
import ModalDialog from '@mui/joy/ModalDialog';
import Typography from '@mui/joy/Typography';
import { useId, useState } from 'react';
import { useTranslation } from 'react-i18next';
import { Markdown } from '../components/Markdown';
import { ActionLink } from '../ui/ActionLink';
import { DialogClose } from '../ui/DialogClose';
import { privacyPolicy } from './welcomeTexts';

/** Opens the privacy policy, which the page carries with it, so that it can be read without a network. */
export function PrivacyPolicyLink() {
  const { t } = useTranslation();
  const titleId = useId();
  const [isOpen, setOpen] = useState(false);
  return (
    <>
      <ActionLink onActivate={() => setOpen(true)}>{t('welcome.privacyPolicy')}</ActionLink>
      <Modal open={isOpen} onClose={() => setOpen(false)}>
        <ModalDialog aria-labelledby={titleId} sx={{ maxWidth: '36rem', overflow: 'auto' }}>
          <DialogClose onClose={() => setOpen(false)} />
          <Typography id={titleId} level="h4" component="h2">
            {t('welcome.privacyPolicy')}
          </Typography>
          <Markdown text={privacyPolicy} />
        </ModalDialog>
      </Modal>
    </>
  );
}
