import cc from 'classcat';
import { type FocusEvent, type KeyboardEvent, type ReactNode, useMemo } from 'react';
import { runCommand } from '../../../commands/command';
import { type Direction, WORD_COMMANDS } from '../../../commands/wordCommands';
import { isFocused, useSheetStore } from '../../../stores/sheetStore';
import { isTextField } from '../../../ui/alteredText';
import { lastTypedField } from '../lastTypedField';
import { BLOCK_PADDING_X, type RowGeometry } from '../layout/sheetGeometry';
import { blockId, controlOf } from '../wordNavigation';
import styles from './BlockFrame.module.css';
import { blockName } from './rowTexts';

/** Asks for the focus to go to the word next to one. */
export type MoveFocus = (rowKey: string, index: number, direction: Direction, focusKey: string) => void;

interface BlockFrameProps {
  row: RowGeometry;
  index: number;
  onMove: MoveFocus;
  /** Stays in view while the row scrolls. */
  stickyContent: ReactNode;
  /** Scrolls with the row. */
  children?: ReactNode;
}

/** The place of one word in its row. A press or the focus in it makes it the focused word. */
export function BlockFrame({ row, index, onMove, stickyContent, children }: BlockFrameProps) {
  const { type, bits, count, blockWidth, boxWidth } = row;
  const focused = useSheetStore((sheet) => isFocused(sheet, type, bits, index));
  const name = useMemo(() => blockName(row.label, index), [row.label, index]);
  const focus = () => useSheetStore.getState().focus(type, bits, index);

  const onKeyDown = (event: KeyboardEvent) => {
    const focusKey = (event.target as Element).closest('[data-focus-key]')?.getAttribute('data-focus-key') ?? 'value';
    runCommand(WORD_COMMANDS, event, {
      isHeader: (event.target as Element).closest('[data-header]') !== null,
      move: (direction) => onMove(row.key, index, direction, focusKey),
      type() {
        const field = controlOf(event.currentTarget, lastTypedField());
        field?.focus();
        if (isTextField(field)) field.select();
      },
    });
  };

  return (
    <div
      id={blockId(row.key, index)}
      role="group"
      aria-label={name}
      data-word={index}
      className={cc([styles.block, index % 2 === 1 && styles.high, focused && styles.focused])}
      style={{ left: (count - 1 - index) * blockWidth, width: blockWidth }}
      onPointerDown={focus}
      onFocus={(event: FocusEvent) => event.currentTarget.contains(event.target) && focus()}
      onKeyDown={onKeyDown}
    >
      <div className={styles.stickyContent} style={{ width: boxWidth + 2 * BLOCK_PADDING_X }}>
        {stickyContent}
      </div>
      {children}
    </div>
  );
}

export interface BlockProps {
  row: RowGeometry;
  index: number;
  /** Some of its row is in the view. */
  isInView: boolean;
  onMove: MoveFocus;
}
