import cc from 'classcat';
import { memo, type MouseEvent, useRef } from 'react';
import { i18next } from '../../../i18n';
import { wordHalfLabel, wordNumber, wordSignLabel } from '../../../model/sheet/wordLabels';
import { useSheetStore } from '../../../stores/sheetStore';
import { toolbarHandlers } from '../../useToolbar';
import { OperationsBar } from './OperationsBar';
import styles from './WordHeader.module.css';

interface WordHeaderProps {
  lines: number;
  width: number;
  index: number;
  signed: boolean;
  focused: boolean;
}

/** The line above a word's fields: its number, its sign, its half, and what can be done to it. */
export const WordHeader = memo(function WordHeader({ lines, width, index, signed, focused }: WordHeaderProps) {
  return (
    <div
      data-header
      role="toolbar"
      aria-label={i18next.t('words.header')}
      {...toolbarHandlers}
      className={cc([styles.header, lines > 1 && styles.tall])}
    >
      <span className={styles.number}>{wordNumber(index)}</span>
      <SignButton width={width} index={index} signed={signed} focused={focused} />
      <span>{wordHalfLabel(width, index)}</span>
      <OperationsBar width={width} index={index} />
    </div>
  );
});

/** The first press of a word that is not focused only focuses it. */
function SignButton({ width, index, signed, focused }: Omit<WordHeaderProps, 'lines'>) {
  const wasFocused = useRef(false);
  const label = wordSignLabel(width, signed);
  const onClick = ({ detail }: MouseEvent) => {
    const { focus, toggleWordSign } = useSheetStore.getState();
    // A pointer's press has focused the word by now; a key's or an assistant's has no count of presses.
    if (detail > 0 ? wasFocused.current : focused) toggleWordSign(index, width);
    else focus('integer', width, index);
  };
  return (
    <button
      type="button"
      className={cc([styles.sign, focused && styles.focused])}
      data-focus-key="sign"
      aria-label={i18next.t(signed ? 'words.signed' : 'words.unsigned', { label })}
      title={i18next.t('words.signHelp')}
      onPointerDown={() => (wasFocused.current = focused)}
      onClick={onClick}
    >
      {label}
    </button>
  );
}
