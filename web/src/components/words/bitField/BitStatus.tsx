import { useTranslation } from 'react-i18next';
import { READOUT_ID } from './BitField';
import { bitWeight, useBitReadout } from './activeBit';

/** Says the bit under the pointer or the keyboard's cursor, also to screen readers. */
export function BitStatus() {
  const { t } = useTranslation();
  const readout = useBitReadout((state) => state.readout);
  return (
    <div id={READOUT_ID} className="bit-status" role="status">
      {readout && (
        <>
          <span>
            {t('words.bit', { bit: readout.bit, number: readout.index + 1, value: readout.isSet ? '1' : '0' })}
          </span>{' '}
          <span className="bit-weight">{t('words.weight', { weight: bitWeight(readout) })}</span>
        </>
      )}
    </div>
  );
}
