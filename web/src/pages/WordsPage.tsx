import Box from '@mui/joy/Box';
import { colors } from '../app/theme';
import { DocumentBar } from '../components/DocumentBar';
import { EmptyTool } from '../components/EmptyTool';
import { SheetTabs } from '../components/SheetTabs';
import { SheetView } from '../components/SheetView';
import { useSheetsStore } from '../stores/sheetsStore';

/** The Words tool: the document bar, a tab for each sheet, and the sheet whose tab is active. */
export function WordsPage() {
  const hasSheets = useSheetsStore((store) => store.sheets.size > 0);
  return (
    <Box
      component="main"
      sx={{
        display: 'grid',
        gridTemplateRows: 'auto minmax(0, 1fr)',
        gridTemplateColumns: 'minmax(0, 1fr)',
        height: '100%',
      }}
    >
      <Box sx={{ background: colors.body }}>
        <DocumentBar />
        {hasSheets && <SheetTabs />}
      </Box>
      {hasSheets ? <SheetView /> : <EmptyTool />}
    </Box>
  );
}
