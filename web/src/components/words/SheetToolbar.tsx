import { useTranslation } from 'react-i18next';
import { hasFlagOption, SCROLL_LOCK_HORIZONTAL } from '../../model/flagOptions';
import { useSheetStore } from '../../stores/sheetStore';
import { READOUT_ID } from './BitField';
import { bitWeight, useBitReadout } from './bitReadout';
import { ConvertersPicker } from './ConvertersPicker';
import { FormatsPicker } from './FormatsPicker';
import { ResolutionPicker } from './ResolutionPicker';

/** What can be chosen for the whole sheet, and at the right the bit that is pointed at. */
export function SheetToolbar({ hasOverflow }: { hasOverflow: boolean }) {
  const { t } = useTranslation();
  return (
    <div className="sheet-toolbar" role="group" aria-label={t('words.toolbar')}>
      <ResolutionPicker />
      {hasOverflow && <ScrollLock />}
      <ConvertersPicker />
      <FormatsPicker />
      <Readout />
    </div>
  );
}

function ScrollLock() {
  const { t } = useTranslation();
  const isOn = useSheetStore((sheet) => hasFlagOption(sheet.flagOptions, SCROLL_LOCK_HORIZONTAL));
  return (
    <button
      type="button"
      className="switch"
      aria-pressed={isOn}
      title={t('words.scrollLockHelp')}
      onClick={() => useSheetStore.getState().toggleFlagOption(SCROLL_LOCK_HORIZONTAL)}
    >
      {t('words.scrollLock')}
    </button>
  );
}

/** Says the bit under the pointer or the keyboard's cursor, also to screen readers. */
function Readout() {
  const { t } = useTranslation();
  const readout = useBitReadout((state) => state.readout);
  return (
    <div id={READOUT_ID} className="readout" role="status">
      {readout && (
        <>
          <span>
            {t('words.bit', { bit: readout.bit, number: readout.index + 1, value: readout.isSet ? '1' : '0' })}
          </span>{' '}
          <span className="readout-weight">{t('words.weight', { weight: bitWeight(readout) })}</span>
        </>
      )}
    </div>
  );
}
