import cc from 'classcat';
import { type KeyboardEvent, type ReactNode, useId, useRef, useState } from 'react';
import { ListBox, type ListGroup } from './ListBox';
import styles from './Picker.module.css';
import { Popup } from './Popup';
import { visuallyHidden } from './visuallyHidden';

interface PickerProps {
  label: string;
  /** What is chosen, in short. */
  summary: string;
  groups: readonly ListGroup[];
  isChosen: (id: string) => boolean;
  onChoose: (id: string) => void;
  /** Several can be chosen: the list stays open. */
  multiple?: boolean;
  /** Below the list. */
  footer?: ReactNode;
  /** Shows only what is chosen; the label is for assistive technology. */
  hideLabel?: boolean;
  /** Says where the button belongs, for moving between words. */
  focusKey?: string;
}

/** A button that says what is chosen and opens the list to choose from. */
export function Picker({
  label,
  summary,
  groups,
  isChosen,
  onChoose,
  multiple = false,
  footer,
  hideLabel = false,
  focusKey,
}: PickerProps) {
  const button = useRef<HTMLButtonElement>(null);
  const [isOpen, setOpen] = useState(false);
  const labelId = useId();
  const close = () => setOpen(false);
  const choose = (id: string) => {
    onChoose(id);
    if (multiple) return;
    button.current?.focus();
    close();
  };
  const onKeyDown = (event: KeyboardEvent) => {
    if (event.key !== 'ArrowDown' && event.key !== 'ArrowUp') return;
    event.preventDefault();
    setOpen(true);
  };
  return (
    <div>
      <button
        ref={button}
        type="button"
        className={cc([styles.button, hideLabel && styles.hidesLabel])}
        data-focus-key={focusKey}
        aria-haspopup="listbox"
        aria-expanded={isOpen}
        onClick={() => setOpen(!isOpen)}
        onKeyDown={onKeyDown}
      >
        <span id={labelId} className={styles.label} style={hideLabel ? visuallyHidden : undefined}>
          {label}
        </span>{' '}
        <span className={styles.summary}>{summary}</span>
      </button>
      {isOpen && (
        <Popup anchor={button} onClose={close}>
          <ListBox labelledBy={labelId} groups={groups} isChosen={isChosen} onChoose={choose} multiple={multiple} />
          {footer && <div className={styles.footer}>{footer}</div>}
        </Popup>
      )}
    </div>
  );
}
