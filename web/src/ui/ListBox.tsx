import { type FocusEvent, type KeyboardEvent, useLayoutEffect, useRef } from 'react';
import styles from './ListBox.module.css';
import { moveRovingFocus, seekByLetter } from './rovingFocus';

export interface ListGroup {
  /** Shown above the group; a group without one is the whole list. */
  readonly label?: string;
  readonly options: readonly { readonly id: string; readonly label: string; readonly caption?: string }[];
  /** More than 1 for a grid. */
  readonly columns?: number;
}

interface ListBoxProps {
  labelledBy: string;
  groups: readonly ListGroup[];
  isChosen: (id: string) => boolean;
  onChoose: (id: string) => void;
  multiple: boolean;
}

/** A list box with the focus on one of its options, at first on the first chosen one. */
export function ListBox({ labelledBy, groups, isChosen, onChoose, multiple }: ListBoxProps) {
  const list = useRef<HTMLDivElement>(null);
  const columns = Math.max(...groups.map((group) => group.columns ?? 1));
  const optionElements = () => [...list.current!.querySelectorAll<HTMLElement>('[role="option"]')];

  useLayoutEffect(() => {
    const options = optionElements();
    (options.find((option) => option.ariaSelected === 'true') ?? options[0])?.focus();
  }, []);

  // Tab comes back to the option that it left.
  const onFocus = ({ target }: FocusEvent) => {
    for (const option of optionElements()) option.tabIndex = option === target ? 0 : -1;
  };
  const onKeyDown = (event: KeyboardEvent) => {
    const { id } = (event.target as HTMLElement).dataset;
    if ((event.key === ' ' || event.key === 'Enter') && id !== undefined) {
      event.preventDefault();
      return onChoose(id);
    }
    moveRovingFocus(event, optionElements(), columns);
    seekByLetter(event, optionElements());
  };

  const options = (group: ListGroup) =>
    group.options.map(({ id, label, caption }) => (
      <div
        key={id}
        role="option"
        aria-description={caption}
        className={styles.option}
        tabIndex={-1}
        aria-selected={isChosen(id)}
        data-id={id}
        onClick={() => onChoose(id)}
      >
        {label}
        {caption && (
          <span className={styles.caption} aria-hidden="true">
            {caption}
          </span>
        )}
      </div>
    ));

  return (
    <div
      ref={list}
      role="listbox"
      aria-labelledby={labelledBy}
      aria-multiselectable={multiple || undefined}
      onFocus={onFocus}
      onKeyDown={onKeyDown}
    >
      {groups.map((group, position) =>
        group.label === undefined ? (
          options(group)
        ) : (
          <div key={position} role="group" aria-label={group.label}>
            <div className={styles.groupLabel} aria-hidden="true">
              {group.label}
            </div>
            <div
              role="presentation"
              className={styles.groupOptions}
              style={{ gridTemplateColumns: `repeat(${group.columns ?? 1}, minmax(min-content, 1fr))` }}
            >
              {options(group)}
            </div>
          </div>
        ),
      )}
    </div>
  );
}
