import Box from '@mui/joy/Box';
import { useSheetsStore } from '../stores/sheetsStore';
import { SheetCard } from './SheetCard';
import { SHEET_PANEL_ID } from './sheetPanel';

/** The sheet whose tab is active. */
export function SheetView() {
  const sheet = useSheetsStore((store) => store.getActiveSheet());
  if (!sheet) return null;
  return (
    <Box
      role="tabpanel"
      id={SHEET_PANEL_ID}
      aria-label={sheet.displayName}
      tabIndex={0}
      sx={{ height: '100%', padding: 1.5, overflow: 'auto' }}
    >
      <SheetCard sheet={sheet} />
    </Box>
  );
}
