import cc from 'classcat';
import { rangeReading } from '../../../actions/rangeReading';
import { i18next } from '../../../i18n';
import type { BitRange } from '../../../model/range/bitRange';
import { currentRange, useBitRange } from '../../../stores/bitRange';
import { useSheetStore } from '../../../stores/sheetStore';
import { typing } from '../../../ui/alteredText';
import { statusMessage } from '../../../ui/statusMessage';
import { useLaterSnapshot } from '../../../ui/useLaterSnapshot';
import { ComparisonStatus } from '../compare/ComparisonStatus';
import { activeBitState, bitWeight } from './activeBit';
import { READOUT_ID } from './BitField';
import styles from './BitStatus.module.css';
import { WordSummary } from './WordSummary';

/**
 * Shows what the last command did, else the bits that are chosen and the one under the pointer or the keyboard's cursor,
 * also to screen readers. While there is nothing of these, it is about the focused word, which a screen reader has read at
 * its field.
 */
export function BitStatus() {
  const { bit } = useLaterSnapshot(activeBitState);
  const { isPending } = useLaterSnapshot(typing);
  const { text } = useLaterSnapshot(statusMessage);
  const range = useCurrentRange();
  const isFree = !text && !isPending;
  return (
    <div className={cc([styles.line, range && styles.tall])}>
      <div id={READOUT_ID} className={styles.status} role="status" aria-atomic={!range}>
        {text ? <Report key={text} text={text} /> : isPending && i18next.t('words.altered')}
        {isFree && range && <RangeReading range={range} />}
        {isFree && bit && (
          <>
            <span>{i18next.t('words.bit', { bit: bit.bit, number: bit.index + 1, value: bit.isSet ? '1' : '0' })}</span>{' '}
            <span className={styles.weight}>{i18next.t('words.weight', { weight: bitWeight(bit) })}</span>
            {bit.index > 0 && (
              <span className={styles.weight}>
                {i18next.t('ranges.sheetBit', { bit: bit.width * bit.index + bit.bit })}
              </span>
            )}
          </>
        )}
      </div>
      {isFree && !bit && !range && <WordSummary />}
      {!text && <ComparisonStatus />}
    </div>
  );
}

function useCurrentRange(): BitRange | undefined {
  useBitRange((state) => state.chosen);
  useSheetStore((sheet) => sheet.id);
  useSheetStore((sheet) => sheet.int.resolution);
  return currentRange();
}

/** Anew with each change of the sheet, and with the word that has the focus. */
function RangeReading({ range }: { range: BitRange }) {
  useSheetStore((sheet) => sheet.int);
  useSheetStore((sheet) => sheet.focusedBlock);
  return <span className={styles.range}>{rangeReading(range)}</span>;
}

/** A block, and a new one for each text: WebKitGTK sends screen readers nothing of a text that changes, or of what is inline. */
function Report({ text }: { text: string }) {
  return <div className={styles.report}>{text}</div>;
}
