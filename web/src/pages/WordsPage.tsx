import { useTranslation } from 'react-i18next';
import { DocumentBar } from '../components/DocumentBar';
import { EmptyTool } from '../components/EmptyTool';
import { SheetTabs } from '../components/SheetTabs';
import { WordsTool } from '../components/words/WordsTool';
import { useSheetsStore } from '../stores/sheetsStore';
import { visuallyHidden } from '../ui/visuallyHidden';
import styles from './WordsPage.module.css';

/** The Words tool: the document bar, a tab for each sheet, and the sheet whose tab is active. */
export function WordsPage() {
  const { t } = useTranslation();
  const hasSheets = useSheetsStore((store) => store.sheets.size > 0);
  return (
    <main className={styles.page}>
      <div className={styles.bars}>
        {hasSheets && <h1 style={visuallyHidden}>{t('tools.words.name')}</h1>}
        <DocumentBar />
        {hasSheets && <SheetTabs />}
      </div>
      {hasSheets ? <WordsTool /> : <EmptyTool />}
    </main>
  );
}
