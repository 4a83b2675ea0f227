import { useTranslation } from 'react-i18next';
import { useSnapshot } from 'valtio';
import { typing } from '../../../ui/alteredText';
import { statusMessage } from '../../../ui/statusMessage';
import { ComparisonStatus } from '../compare/ComparisonStatus';
import { activeBitState, bitWeight } from './activeBit';
import { READOUT_ID } from './BitField';
import styles from './BitStatus.module.css';
import { WordSummary } from './WordSummary';

/**
 * Shows what the last command did, else the bit under the pointer or the keyboard's cursor, also to screen readers. While
 * there is neither, it is about the focused word, which a screen reader has read at its field.
 */
export function BitStatus() {
  const { t } = useTranslation();
  const { bit } = useSnapshot(activeBitState);
  const { isPending } = useSnapshot(typing);
  const { text } = useSnapshot(statusMessage);
  return (
    <div className={styles.line}>
      <div id={READOUT_ID} className={styles.status} role="status">
        {text || (isPending && t('words.altered'))}
        {!text && !isPending && bit && (
          <>
            <span>{t('words.bit', { bit: bit.bit, number: bit.index + 1, value: bit.isSet ? '1' : '0' })}</span>{' '}
            <span className={styles.weight}>{t('words.weight', { weight: bitWeight(bit) })}</span>
          </>
        )}
      </div>
      {!text && !isPending && !bit && <WordSummary />}
      {!text && <ComparisonStatus />}
    </div>
  );
}
