import cc from 'classcat';
import { useState } from 'react';
import { useSheetStore } from '../../stores/sheetStore';
import controlStyles from '../../ui/controls.module.css';
import { SHEET_PANEL_ID } from '../sheetPanel';
import { BitStatus } from './bitField/BitStatus';
import { SheetComparison } from './compare/SheetComparison';
import { geometryProperties } from './layout/geometryProperties';
import { WordPanels } from './panels/WordPanels';
import { NamesBar } from './range/NamesBar';
import { RangePromptBar } from './range/RangePromptBar';
import { SheetView } from './SheetView';
import { SheetToolbar } from './toolbar/SheetToolbar';
import styles from './WordsTool.module.css';

/** The sheet that is shown: its toolbar and its rows of words. Nothing while there is none. */
export function WordsTool() {
  const hasSheet = useSheetStore((sheet) => sheet.id !== null);
  const displayName = useSheetStore((sheet) => sheet.displayName);
  const [overflows, setOverflows] = useState(false);
  if (!hasSheet) return null;
  return (
    <div
      role="tabpanel"
      id={SHEET_PANEL_ID}
      aria-label={displayName}
      className={cc([controlStyles.controls, styles.tool])}
      style={geometryProperties}
    >
      <SheetToolbar hasOverflow={overflows} />
      <WordPanels>
        <SheetView onOverflow={setOverflows} />
      </WordPanels>
      <SheetComparison />
      <NamesBar />
      <RangePromptBar />
      <BitStatus />
    </div>
  );
}
