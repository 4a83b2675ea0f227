import { memo, useRef, useState } from 'react';
import { directOperations } from '../../../commands/operationIcons';
import { WORD_OPERATIONS, type WordOperation } from '../../../commands/wordCommands';
import { labelText } from '../../../i18n';
import { hoverTitle } from '../../../ui/hoverTitle';
import { PopupMenu } from '../../../ui/PopupMenu';
import styles from './OperationsBar.module.css';

interface OperationsBarProps {
  width: number;
  index: number;
}

/** The operations of a word: as buttons as far as there is room, the others in a menu. */
export const OperationsBar = memo(function OperationsBar({ width, index }: OperationsBarProps) {
  const direct = directOperations(width);
  return (
    <>
      <div className={styles.operations} role="group" aria-label={labelText('words.operations.group')}>
        {WORD_OPERATIONS.slice(0, direct).map((operation) => (
          <button
            key={operation.id}
            type="button"
            tabIndex={-1}
            data-operation={operation.id}
            data-focus-key={operation.id}
            aria-label={operationName(operation)}
            {...hoverTitle(operationName(operation))}
            onClick={() => operation.run({ width, index })}
          >
            {operation.icon}
          </button>
        ))}
      </div>
      {direct < WORD_OPERATIONS.length && (
        <MoreOperations width={width} index={index} operations={WORD_OPERATIONS.slice(direct)} />
      )}
    </>
  );
});

function MoreOperations({ width, index, operations }: OperationsBarProps & { operations: readonly WordOperation[] }) {
  const button = useRef<HTMLButtonElement>(null);
  const [isOpen, setOpen] = useState(false);
  return (
    <>
      <button
        ref={button}
        type="button"
        tabIndex={-1}
        className={styles.more}
        data-focus-key="more"
        aria-haspopup="menu"
        aria-expanded={isOpen}
        aria-label={labelText('words.operations.more')}
        {...hoverTitle(labelText('words.operations.more'))}
        onClick={() => setOpen(!isOpen)}
      >
        ⋯
      </button>
      {isOpen && (
        <PopupMenu
          anchor={button}
          name={labelText('words.operations.more')}
          items={operations.map((operation) => ({
            id: operation.id,
            icon: operation.icon,
            label: operationName(operation),
          }))}
          onChoose={(id) => WORD_OPERATIONS.find((each) => each.id === id)!.run({ width, index })}
          onClose={() => setOpen(false)}
        />
      )}
    </>
  );
}

function operationName({ label }: WordOperation): string {
  return labelText(label);
}
