import Box from '@mui/joy/Box';
import { useTranslation } from 'react-i18next';
import { DocumentBar } from '../components/DocumentBar';
import { EmptyTool } from '../components/EmptyTool';
import { SheetTabs } from '../components/SheetTabs';
import { WordsTool } from '../components/words/WordsTool';
import { useSheetsStore } from '../stores/sheetsStore';
import { colors } from '../ui/tokens';
import { visuallyHidden } from '../ui/visuallyHidden';

/** The Words tool: the document bar, a tab for each sheet, and the sheet whose tab is active. */
export function WordsPage() {
  const { t } = useTranslation();
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
        {hasSheets && <h1 style={visuallyHidden}>{t('tools.words.name')}</h1>}
        <DocumentBar />
        {hasSheets && <SheetTabs />}
      </Box>
      {hasSheets ? <WordsTool /> : <EmptyTool />}
    </Box>
  );
}
