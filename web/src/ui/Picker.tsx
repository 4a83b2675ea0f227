import { useId, useRef, useState, type KeyboardEvent, type ReactNode, type RefObject } from 'react';
import { Popup } from './Popup';
import { ListBox, type ListGroup } from './ListBox';

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
  compact?: boolean;
  /** Says where the button belongs, for moving between words. */
  part?: string;
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
  compact = false,
  part,
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
    <div className={compact ? 'picker compact' : 'picker'}>
      <button
        ref={button}
        type="button"
        data-part={part}
        aria-haspopup="listbox"
        aria-expanded={isOpen}
        onClick={() => setOpen(!isOpen)}
        onKeyDown={onKeyDown}
      >
        <span id={labelId} className="picker-label">
          {label}
        </span>{' '}
        <span className="picker-summary">{summary}</span>
      </button>
      {isOpen && (
        <Popup anchor={button as RefObject<HTMLElement | null>} className="choices" onClose={close}>
          <ListBox labelledBy={labelId} groups={groups} isChosen={isChosen} onChoose={choose} multiple={multiple} />
          {footer && <div className="popup-footer">{footer}</div>}
        </Popup>
      )}
    </div>
  );
}
