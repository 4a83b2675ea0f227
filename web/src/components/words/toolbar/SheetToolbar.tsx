import { useRef } from 'react';
import { useTranslation } from 'react-i18next';
import { hasFlagOption, SCROLL_LOCK_HORIZONTAL } from '../../../model/sheet/flagOptions';
import { useSheetStore } from '../../../stores/sheetStore';
import { toolbarHandlers, useTabStop } from '../../useToolbar';
import { ConvertersPicker } from './ConvertersPicker';
import { FormatsPicker } from './FormatsPicker';
import { KeysHelp } from './KeysHelp';
import { ResolutionPicker } from './ResolutionPicker';
import styles from './SheetToolbar.module.css';

/** The same elements each time: they do not render again when another one comes or goes. */
const RESOLUTION = <ResolutionPicker />;
const OTHERS = (
  <>
    <ConvertersPicker />
    <FormatsPicker />
    <KeysHelp />
  </>
);

/** What can be chosen for the whole sheet. */
export function SheetToolbar({ hasOverflow }: { hasOverflow: boolean }) {
  const { t } = useTranslation();
  const bar = useRef<HTMLDivElement>(null);
  useTabStop(bar);
  return (
    <div
      ref={bar}
      role="toolbar"
      aria-label={t('words.toolbar')}
      data-region
      {...toolbarHandlers}
      className={styles.toolbar}
    >
      {RESOLUTION}
      {hasOverflow && <ScrollLock />}
      {OTHERS}
    </div>
  );
}

function ScrollLock() {
  const { t } = useTranslation();
  const isOn = useSheetStore((sheet) => hasFlagOption(sheet.flagOptions, SCROLL_LOCK_HORIZONTAL));
  return (
    <button
      type="button"
      className={styles.switch}
      aria-pressed={isOn}
      title={t('words.scrollLockHelp')}
      onClick={() => useSheetStore.getState().toggleFlagOption(SCROLL_LOCK_HORIZONTAL)}
    >
      {t('words.scrollLock')}
    </button>
  );
}
