import cc from 'classcat';
import { type KeyboardEvent, type RefObject, useLayoutEffect, useRef } from 'react';
import { Popup, type PopupPlace } from './Popup';
import styles from './PopupMenu.module.css';
import { moveRovingFocus, seekByLetter } from './rovingFocus';

export interface MenuItem {
  readonly id: string;
  readonly label: string;
  readonly icon?: string;
  /** Shown at the end of the line, such as its keys. */
  readonly hint?: string | undefined;
  /** Shown below the label. */
  readonly preview?: string;
  /** One of several of which one is chosen; choosing it leaves the menu open. */
  readonly isChecked?: boolean;
  /** Leads to another menu. */
  readonly leadsOn?: boolean;
  /** A line above sets it apart. */
  readonly beginsGroup?: boolean;
}

interface PopupMenuProps {
  anchor: RefObject<HTMLElement | null>;
  at?: PopupPlace;
  name: string;
  items: readonly MenuItem[];
  onChoose: (id: string) => void;
  onClose: () => void;
  /** The item that has the focus at first; by default the first one. */
  initial?: string;
  /** Goes back to the menu that led here. */
  onBack?: () => void;
}

/** A menu of actions. Exists only while it is open. */
export function PopupMenu({ anchor, at, name, items, onChoose, onClose, initial, onBack }: PopupMenuProps) {
  const menu = useRef<HTMLDivElement>(null);
  const buttons = () => [...menu.current!.querySelectorAll('button')];
  useLayoutEffect(() => {
    (buttons().find(({ dataset }) => dataset.operation === initial) ?? buttons()[0])!.focus();
    // eslint-disable-next-line react-hooks/exhaustive-deps -- once, when the menu opens
  }, []);

  const choose = ({ id, isChecked, leadsOn }: MenuItem) => {
    if (isChecked !== undefined || leadsOn) return onChoose(id);
    anchor.current?.focus();
    onClose();
    onChoose(id);
  };
  const onKeyDown = (event: KeyboardEvent) => {
    const leading = items[buttons().indexOf(event.target as HTMLButtonElement)];
    if (event.key === 'ArrowRight' && leading?.leadsOn) return choose(leading);
    if (event.key === 'ArrowLeft' && onBack) return onBack();
    moveRovingFocus(event, buttons());
    seekByLetter(event, buttons());
  };

  return (
    <Popup anchor={anchor} {...(at && { at })} onClose={onClose}>
      <div ref={menu} role="menu" aria-label={name} className={styles.menu} onKeyDown={onKeyDown}>
        {items.map((item) => (
          <button
            key={item.id}
            type="button"
            role={item.isChecked === undefined ? 'menuitem' : 'menuitemradio'}
            aria-checked={item.isChecked}
            aria-haspopup={item.leadsOn ? 'menu' : undefined}
            className={cc([styles.item, item.beginsGroup && styles.beginsGroup])}
            tabIndex={-1}
            data-operation={item.id}
            data-name={item.label}
            onClick={() => choose(item)}
          >
            {item.icon !== undefined && (
              <span className={styles.icon} aria-hidden="true">
                {item.icon}
              </span>
            )}
            <span className={styles.label}>
              {item.label}
              {item.preview !== undefined && <span className={styles.preview}>{item.preview}</span>}
            </span>
            {(item.hint !== undefined || item.leadsOn) && (
              <span className={styles.hint} aria-hidden="true">
                {item.hint ?? '▸'}
              </span>
            )}
          </button>
        ))}
      </div>
    </Popup>
  );
}
