import { useLayoutEffect, useRef } from 'react';
import { chordLabels } from '../../../commands/keyChord';
import { i18next } from '../../../i18n';
import type { FormProps } from './formProps';
import styles from './panels.module.css';

/** A text to be copied by hand, where the clipboard cannot be written. */
export function CopiedText({ initial }: FormProps) {
  const field = useRef<HTMLTextAreaElement>(null);
  useLayoutEffect(() => field.current!.select(), []);
  const help = i18next.t('panels.copyByHand', { keys: chordLabels(['Mod+C'])[0]! });
  return (
    <div role="dialog" aria-label={help} className={styles.form}>
      <p>{help}</p>
      <textarea ref={field} readOnly rows={4} aria-label={i18next.t('panels.text')} value={initial} />
    </div>
  );
}
