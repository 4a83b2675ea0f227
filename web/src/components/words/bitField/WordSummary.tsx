import type { MouseEvent } from 'react';
import { openPanel } from '../../../actions/wordPanel';
import { shortcutLabel } from '../../../commands/command';
import { INSPECT_WORD } from '../../../commands/wordActions';
import { i18next, labelText } from '../../../i18n';
import { wordSummary } from '../../../model/inspect/wordSummary';
import { wordCount } from '../../../model/integer/wordLayout';
import { definitionLabel } from '../../../model/sheet/numberDefinitions';
import { useSheetStore } from '../../../stores/sheetStore';
import { hoverTitle } from '../../../ui/hoverTitle';
import styles from './BitStatus.module.css';

/** The focused word at a glance; a press shows all that it can be read as. The keyboard has a key for that. */
export function WordSummary() {
  const [type, bits, index] = useSheetStore((sheet) => sheet.focusedBlock);
  const word = useSheetStore(({ int }) =>
    type !== null && index < wordCount(int.resolution, bits) ? int.getWord(bits, index) : undefined,
  );
  if (type === null || word === undefined) return null;

  const { setBits, leadingZeros, trailingZeros, bytesMost, bytesLeast, ascii, float } = wordSummary(word, bits);
  const row = definitionLabel({ type, bits });
  const counts = { set: setBits, bits, leading: leadingZeros, trailing: trailingZeros };
  const parts = [
    i18next.t('inspect.summary', counts),
    float !== undefined && i18next.t('inspect.float', { value: float }),
    `“${ascii}”`,
    bytesMost,
    bytesLeast,
  ];
  const open = ({ currentTarget }: MouseEvent) => {
    const { left, top } = currentTarget.getBoundingClientRect();
    openPanel({ type, bits, index }, { kind: 'inspect' }, { left, top, bottom: innerHeight });
  };
  const keys = shortcutLabel(INSPECT_WORD);
  const action = labelText(INSPECT_WORD.label);
  return (
    <button
      type="button"
      tabIndex={-1}
      aria-haspopup="dialog"
      {...hoverTitle(keys === undefined ? action : i18next.t('frame.shortcut', { action, keys }))}
      className={styles.summary}
      // The word keeps the focus, and with it a text that is being typed.
      onPointerDown={(event) => event.preventDefault()}
      onMouseDown={(event) => event.preventDefault()}
      onClick={open}
    >
      {i18next.t('words.block', { row, number: index + 1 })}
      {parts.map((part, place) => part && <span key={place}> {part}</span>)}
    </button>
  );
}
