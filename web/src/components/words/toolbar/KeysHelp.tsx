import { useLayoutEffect, useRef, useState } from 'react';
import { useTranslation } from 'react-i18next';
import { Popup } from '../../../ui/Popup';

const KEYS = ['words', 'commit', 'restore', 'bits', 'toggle', 'write'] as const;

/** Tells the keys that cannot be seen on the page. */
export function KeysHelp() {
  const { t } = useTranslation();
  const button = useRef<HTMLButtonElement>(null);
  const [isOpen, setOpen] = useState(false);
  return (
    <>
      <button ref={button} type="button" aria-haspopup="dialog" aria-expanded={isOpen} onClick={() => setOpen(!isOpen)}>
        {t('words.keys.title')}
      </button>
      {isOpen && (
        <Popup anchor={button} className="keys" onClose={() => setOpen(false)}>
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
    <div ref={dialog} role="dialog" tabIndex={-1} aria-label={t('words.keys.title')}>
      <dl>
        {KEYS.map((key) => (
          <div key={key}>
            <dt>{t(`words.keys.${key}.keys`)}</dt>
            <dd>{t(`words.keys.${key}.effect`)}</dd>
          </div>
        ))}
      </dl>
    </div>
  );
}
