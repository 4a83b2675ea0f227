import { useLayoutEffect, useRef, useState } from 'react';
import { useTranslation } from 'react-i18next';
import { KEY_GROUPS } from '../../../commands/keyList';
import { Popup } from '../../../ui/Popup';
import styles from './KeysHelp.module.css';

/** Lists every key that the page acts on. */
export function KeysHelp() {
  const { t } = useTranslation();
  const button = useRef<HTMLButtonElement>(null);
  const [isOpen, setOpen] = useState(false);
  return (
    <>
      <button ref={button} type="button" aria-haspopup="dialog" aria-expanded={isOpen} onClick={() => setOpen(!isOpen)}>
        {t('words.keys')}
      </button>
      {isOpen && (
        <Popup anchor={button} onClose={() => setOpen(false)}>
          <KeysList />
        </Popup>
      )}
    </>
  );
}

function KeysList() {
  const { t } = useTranslation();
  const dialog = useRef<HTMLDivElement>(null);
  useLayoutEffect(() => dialog.current!.focus(), []);
  return (
    <div ref={dialog} role="dialog" className={styles.keys} tabIndex={-1} aria-label={t('words.keys')}>
      {KEY_GROUPS.map(({ title, entries }) => (
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
    </div>
  );
}
