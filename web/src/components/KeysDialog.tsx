import Modal from '@mui/joy/Modal';
import ModalDialog from '@mui/joy/ModalDialog';
import { useState } from 'react';
import { useTranslation } from 'react-i18next';
import { useSnapshot } from 'valtio';
import { closeKeysHelp, keysHelp } from '../actions/keysHelp';
import { keyGroups } from '../commands/keyList';
import { DialogClose } from '../ui/DialogClose';
import styles from './KeysDialog.module.css';

/** Lists every key that the page acts on, and finds the one that does something. */
export function KeysDialog() {
  const { t } = useTranslation();
  const { isOpen } = useSnapshot(keysHelp);
  if (!isOpen) return null;
  return (
    <Modal open onClose={closeKeysHelp}>
      <ModalDialog aria-label={t('words.keys')} className={styles.dialog}>
        <DialogClose onClose={closeKeysHelp} />
        <KeysList />
      </ModalDialog>
    </Modal>
  );
}

function KeysList() {
  const { t } = useTranslation();
  const [sought, setSought] = useState('');
  const wanted = sought.trim().toLowerCase();
  const groups = keyGroups()
    .map(({ title, entries }) => ({
      title,
      entries: entries.filter(({ keys, label }) => `${keys} ${t(label)}`.toLowerCase().includes(wanted)),
    }))
    .filter(({ entries }) => entries.length > 0);
  return (
    <>
      <input
        type="search"
        autoFocus
        className={styles.search}
        aria-label={t('words.searchKeys')}
        placeholder={t('words.searchKeys')}
        value={sought}
        onChange={(event) => setSought(event.currentTarget.value)}
      />
      {/* Scrolled by keyboard, too. */}
      <div className={styles.keys} tabIndex={0} role="region" aria-label={t('words.keys')}>
        {groups.map(({ title, entries }) => (
          <section key={title} aria-label={t(title)}>
            <h2>{t(title)}</h2>
            <dl>
              {entries.map(({ id, keys, label }) => (
                <div key={id}>
                  <dt>{keys}</dt>
                  <dd>{t(label)}</dd>
                </div>
              ))}
            </dl>
          </section>
        ))}
        {groups.length === 0 && <p>{t('words.noKeys')}</p>}
      </div>
    </>
  );
}
