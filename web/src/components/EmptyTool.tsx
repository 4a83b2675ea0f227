import Box from '@mui/joy/Box';
import Typography from '@mui/joy/Typography';
import { Trans, useTranslation } from 'react-i18next';
import { newDocument, openDocument } from '../actions/documentActions';
import { useDocumentTarget } from '../commands/useDocumentCommands';
import { ActionLink } from '../ui/ActionLink';

/** What the Words tool shows while there is no sheet. */
export function EmptyTool() {
  const { t } = useTranslation();
  const { navigate } = useDocumentTarget();
  return (
    <Box sx={{ display: 'grid', placeContent: 'center', justifyItems: 'center', gap: 1, height: '100%', padding: 2 }}>
      <Typography level="h2" component="h1">
        {t('tools.words.welcome')}
      </Typography>
      <Typography>{t('tools.words.getStarted')}</Typography>
      <Typography>
        <Trans
          i18nKey="tools.words.createOrOpen"
          components={{
            create: <ActionLink onActivate={() => void newDocument(navigate)} />,
            open: <ActionLink onActivate={() => void openDocument(navigate)} />,
          }}
        />
      </Typography>
    </Box>
  );
}
