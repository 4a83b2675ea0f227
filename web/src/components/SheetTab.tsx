import Box from '@mui/joy/Box';
import { type KeyboardEvent, memo, useRef, useState } from 'react';
import { useTranslation } from 'react-i18next';
import { VscClose } from 'react-icons/vsc';
import { runCommand } from '../commands/command';
import { TAB_COMMANDS, type TabTarget } from '../commands/tabCommands';
import { useSheetsStore } from '../stores/sheetsStore';
import { colors } from '../ui/tokens';
import { SheetNameEditor } from './SheetNameEditor';
import { SHEET_PANEL_ID } from './sheetPanel';
import { TAB_WIDTH } from './tabVirtualizer';

/** No tab shows more than this of a name, however long a document makes it. */
const LONGEST_NAME = 200;

interface SheetTabProps {
  tabId: string;
  sheetId: string;
  name: string;
  isActive: boolean;
  isClosable: boolean;
  onClose: (sheetId: string) => void;
  onShow: TabTarget['show'];
  /** Counted from 1 among all tabs, also those that are not on the page. */
  position: number;
  count: number;
}

/** One sheet's tab with its close button. A double click or F2 renames the sheet, Delete closes it. */
export const SheetTab = memo(function SheetTab(props: SheetTabProps) {
  const { tabId, sheetId, name, isActive, isClosable, onClose, onShow, position, count } = props;
  const { t } = useTranslation();
  const [isEditing, setEditing] = useState(false);
  const tab = useRef<HTMLButtonElement>(null);
  const shownName = name.slice(0, LONGEST_NAME);

  const { setActiveSheet } = useSheetsStore.getState();
  const onKeyDown = (event: KeyboardEvent) => {
    const target = { isClosable, rename: () => setEditing(true), close: () => onClose(sheetId), show: onShow };
    runCommand(TAB_COMMANDS, event, target);
  };
  const stopEditing = () => {
    setEditing(false);
    tab.current?.focus({ preventScroll: true });
  };

  return (
    <Box sx={[TAB, isActive && ACTIVE_TAB]}>
      <Box
        ref={tab}
        component="button"
        type="button"
        role="tab"
        id={tabId}
        aria-selected={isActive}
        aria-controls={isActive ? SHEET_PANEL_ID : undefined}
        aria-posinset={position}
        aria-setsize={count}
        tabIndex={isActive ? 0 : -1}
        title={shownName}
        onClick={() => setActiveSheet(sheetId)}
        onDoubleClick={() => setEditing(true)}
        onKeyDown={onKeyDown}
        sx={TAB_BUTTON}
      >
        <bdi>{shownName}</bdi>
      </Box>
      {isClosable && (
        <Box
          component="button"
          type="button"
          aria-label={t('sheets.close', { name: shownName })}
          tabIndex={isActive ? 0 : -1}
          onClick={() => onClose(sheetId)}
          sx={CLOSE_BUTTON}
        >
          <VscClose aria-hidden />
        </Box>
      )}
      {isEditing && <SheetNameEditor sheetId={sheetId} name={name} onDone={stopEditing} />}
    </Box>
  );
});

const BARE_BUTTON = { padding: 0, border: 0, background: 'transparent', color: 'inherit', font: 'inherit' } as const;

const TAB = {
  position: 'relative',
  display: 'flex',
  alignItems: 'center',
  width: TAB_WIDTH,
  height: 32,
  color: '#c3cad5',
  borderRight: '1px solid #ffffff1a',
  '&:hover': { background: '#ffffff14' },
} as const;

const ACTIVE_TAB = {
  color: '#fff',
  background: colors.activeTab,
  '&:hover': { background: colors.activeTab },
  // Where the system's colours replace ours, a line marks the tab instead.
  '@media (forced-colors: active)': { borderBottom: '3px solid Highlight' },
} as const;

const TAB_BUTTON = {
  ...BARE_BUTTON,
  flex: 1,
  minWidth: 0,
  height: '100%',
  paddingLeft: 1.25,
  textAlign: 'left',
  fontSize: '0.875rem',
  overflow: 'hidden',
  textOverflow: 'ellipsis',
  whiteSpace: 'nowrap',
  cursor: 'pointer',
  '&:focus-visible': { outlineOffset: -2 },
} as const;

const CLOSE_BUTTON = {
  ...BARE_BUTTON,
  display: 'grid',
  placeItems: 'center',
  flexShrink: 0,
  width: 24,
  height: 24,
  marginInline: 0.5,
  borderRadius: 4,
  cursor: 'pointer',
  '&:hover': { background: '#ffffff26' },
} as const;
