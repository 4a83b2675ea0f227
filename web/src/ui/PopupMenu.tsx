import { type KeyboardEvent, type RefObject, useLayoutEffect, useRef } from 'react';
import { Popup } from './Popup';
import styles from './PopupMenu.module.css';
import { moveRovingFocus } from './rovingFocus';

interface PopupMenuProps {
  anchor: RefObject<HTMLElement | null>;
  name: string;
  items: readonly { id: string; icon: string; label: string }[];
  onChoose: (id: string) => void;
  onClose: () => void;
}

/** A menu of actions. Exists only while it is open. */
export function PopupMenu({ anchor, name, items, onChoose, onClose }: PopupMenuProps) {
  const menu = useRef<HTMLDivElement>(null);
  useLayoutEffect(() => menu.current!.querySelector('button')!.focus(), []);

  const choose = (id: string) => {
    anchor.current?.focus();
    onClose();
    onChoose(id);
  };
  const onKeyDown = (event: KeyboardEvent) => moveRovingFocus(event, [...menu.current!.querySelectorAll('button')]);

  return (
    <Popup anchor={anchor} onClose={onClose}>
      <div ref={menu} role="menu" aria-label={name} onKeyDown={onKeyDown}>
        {items.map(({ id, icon, label }) => (
          <button
            key={id}
            type="button"
            role="menuitem"
            className={styles.item}
            tabIndex={-1}
            data-operation={id}
            onClick={() => choose(id)}
          >
            <span className={styles.icon} aria-hidden="true">
              {icon}
            </span>
            {label}
          </button>
        ))}
      </div>
    </Popup>
  );
}
