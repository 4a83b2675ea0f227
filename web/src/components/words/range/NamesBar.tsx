import { type KeyboardEvent, memo, useRef } from 'react';
import { copyNames } from '../../../actions/namesClipboard';
import { removeName, removeNames } from '../../../actions/rangeNaming';
import { hexOf } from '../../../actions/rangeReading';
import { i18next } from '../../../i18n';
import { readRange } from '../../../model/range/bitRange';
import { bareRange, type NamedRange } from '../../../model/range/namedRanges';
import { chooseRange } from '../../../stores/bitRange';
import { namesOf, useRangeNames } from '../../../stores/rangeNames';
import { useSheetStore } from '../../../stores/sheetStore';
import { briefMessage } from '../../../ui/briefMessage';
import { toolbarHandlers, useTabStop } from '../../useToolbar';
import styles from './NamesBar.module.css';

/** The names of the sheet's bits with their values, as buttons that choose the bits; nothing while there are none. */
export function NamesBar() {
  const bar = useRef<HTMLDivElement>(null);
  const sheetId = useSheetStore((sheet) => sheet.id);
  const resolution = useSheetStore((sheet) => sheet.int.resolution);
  useRangeNames((state) => state.bySheet);
  const names = namesOf(sheetId).filter(({ hi }) => hi < resolution);
  useTabStop(bar);
  if (names.length === 0) return null;
  return (
    <div
      ref={bar}
      role="toolbar"
      aria-label={i18next.t('ranges.names')}
      data-region
      {...toolbarHandlers}
      className={styles.bar}
    >
      <span className={styles.caption}>{i18next.t('ranges.namesHelp')}</span>
      {names.map((each) => (
        <NameButton key={each.name} named={each} />
      ))}
      <button type="button" className={styles.action} onClick={copyNames}>
        {i18next.t('commands.range.copyNames')}
      </button>
      <button type="button" className={styles.action} onClick={removeNames}>
        {i18next.t('commands.range.removeNames')}
      </button>
    </div>
  );
}

/** Renders again only when its own bits change. */
const NameButton = memo(function NameButton({ named }: { named: NamedRange }) {
  const value = useSheetStore((sheet) => readRange(sheet.int.value, named));
  const onKeyDown = (event: KeyboardEvent<HTMLElement>) => {
    if (event.key !== 'Delete') return;
    const beside = event.currentTarget.nextElementSibling;
    removeName(named);
    if (beside instanceof HTMLElement) beside.focus();
  };
  return (
    <button type="button" className={styles.name} onClick={() => chooseRange(named.hi, named.lo)} onKeyDown={onKeyDown}>
      {named.name} <span className={styles.range}>{bareRange(named)}</span> = <b>{briefMessage(`${value}`)}</b>{' '}
      <span className={styles.range}>{briefMessage(hexOf(value, 0))}</span>
    </button>
  );
});
