import cc from 'classcat';
import { type KeyboardEvent, memo, type MouseEvent, type PointerEvent, useRef, useState } from 'react';
import { useTranslation } from 'react-i18next';
import { VscClose } from 'react-icons/vsc';
import { askForComparison } from '../actions/sheetComparison';
import { runCommand, shortcutLabel } from '../commands/command';
import { TAB_COMMANDS, TAB_MENU, type TabTarget } from '../commands/tabCommands';
import { labelText } from '../i18n';
import { useSheetsStore } from '../stores/sheetsStore';
import { hoverTitle } from '../ui/hoverTitle';
import type { PopupPlace } from '../ui/Popup';
import { PopupMenu } from '../ui/PopupMenu';
import { SheetNameEditor } from './SheetNameEditor';
import { SHEET_PANEL_ID } from './sheetPanel';
import styles from './SheetTab.module.css';

/** No tab shows more than this of a name, however long a document makes it. */
const LONGEST_NAME = 200;
const MIDDLE_BUTTON = 1;

/** What tabs ask of their strip. */
export interface TabActions {
  readonly close: (sheetId: string) => void;
  readonly show: TabTarget['show'];
  /** Puts the sheet so many places further on. */
  readonly move: (sheetId: string, by: -1 | 1) => void;
  readonly beginDrag: (sheetId: string, event: PointerEvent) => void;
}

interface SheetTabProps {
  tabId: string;
  sheetId: string;
  name: string;
  isActive: boolean;
  isClosable: boolean;
  actions: TabActions;
  isDragged: boolean;
  /** The edge at which a dragged tab would be put. */
  dropEdge: 'start' | 'end' | undefined;
  /** In CSS pixels. */
  width: number;
  /** Counted from 1 among all tabs, also those that are not on the page. */
  position: number;
  count: number;
}

/** One sheet's tab with its close button. A double click or F2 renames the sheet, Delete closes it. */
export const SheetTab = memo(function SheetTab(props: SheetTabProps) {
  const { tabId, sheetId, name, isActive, isClosable, actions, position, count } = props;
  const { isDragged, dropEdge, width } = props;
  const { t } = useTranslation();
  const [isEditing, setEditing] = useState(false);
  const [menuPlace, setMenuPlace] = useState<PopupPlace>();
  const tab = useRef<HTMLButtonElement>(null);
  const shownName = name.slice(0, LONGEST_NAME);

  const { setActiveSheet } = useSheetsStore.getState();
  const target: TabTarget = {
    isClosable,
    rename: () => setEditing(true),
    close: () => actions.close(sheetId),
    show: actions.show,
    move: (by) => actions.move(sheetId, by),
    compare: () => askForComparison(sheetId),
    openMenu: () => setMenuPlace(tab.current!.getBoundingClientRect()),
  };
  const onKeyDown = (event: KeyboardEvent) => void runCommand(TAB_COMMANDS, event, target);
  const onContextMenu = (event: MouseEvent) => {
    // With Shift the browser's own menu comes.
    if (event.shiftKey || isEditing) return;
    event.preventDefault();
    setMenuPlace({ left: event.clientX, top: event.clientY, bottom: event.clientY });
  };
  const stopEditing = () => {
    setEditing(false);
    tab.current?.focus({ preventScroll: true });
  };

  const onAuxClick = ({ button }: MouseEvent) => {
    if (button === MIDDLE_BUTTON && isClosable) actions.close(sheetId);
  };

  return (
    <>
      <div
        className={cc([
          styles.tab,
          isActive && styles.active,
          isDragged && styles.dragged,
          dropEdge === 'start' && styles.start,
          dropEdge === 'end' && styles.end,
        ])}
        style={{ width }}
        onAuxClick={onAuxClick}
        onContextMenu={onContextMenu}
        // The browser would begin to scroll.
        onMouseDown={(event) => event.button === MIDDLE_BUTTON && event.preventDefault()}
      >
        <button
          ref={tab}
          type="button"
          role="tab"
          id={tabId}
          aria-selected={isActive}
          aria-controls={isActive ? SHEET_PANEL_ID : undefined}
          aria-posinset={position}
          aria-setsize={count}
          aria-keyshortcuts={isClosable ? 'Delete F2' : 'F2'}
          tabIndex={isActive && !isEditing ? 0 : -1}
          {...hoverTitle(shownName)}
          onPointerDown={(event) => actions.beginDrag(sheetId, event)}
          onClick={() => setActiveSheet(sheetId)}
          onDoubleClick={() => setEditing(true)}
          onKeyDown={onKeyDown}
          className={styles.name}
        >
          <bdi>{shownName}</bdi>
        </button>
        {isClosable && (
          <button
            type="button"
            aria-label={t('sheets.close', { name: shownName })}
            tabIndex={-1}
            // The second click of a double click finds the next sheet's button in the same place.
            onClick={({ detail }) => detail < 2 && actions.close(sheetId)}
            className={styles.close}
          >
            <VscClose aria-hidden />
          </button>
        )}
        {isEditing && <SheetNameEditor sheetId={sheetId} name={name} onDone={stopEditing} />}
      </div>
      {menuPlace && (
        <PopupMenu
          anchor={tab}
          at={menuPlace}
          name={t('commands.tab.menu')}
          items={TAB_MENU.filter(({ when }) => when?.(target) ?? true).map((command) => ({
            id: command.id,
            label: labelText(command.label),
            hint: shortcutLabel(command),
          }))}
          onClose={() => setMenuPlace(undefined)}
          onChoose={(id) => TAB_MENU.find((command) => command.id === id)!.run(target)}
        />
      )}
    </>
  );
});
