import Box from '@mui/joy/Box';
import { SheetCard } from '../components/SheetCard';
import { useSheetsStore } from '../stores/sheetsStore';

/** The Words tool: every sheet of the open document. */
export function WordsPage() {
  const sheets = useSheetsStore((store) => store.sheets);
  return (
    <Box
      component="main"
      sx={{ display: 'grid', alignContent: 'start', gap: 1.5, height: '100%', padding: 2, overflow: 'auto' }}
    >
      {[...sheets.values()].map((sheet) => (
        <SheetCard key={sheet.id} sheet={sheet} />
      ))}
    </Box>
  );
}
