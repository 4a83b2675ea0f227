import Box from '@mui/joy/Box';
import LinearProgress from '@mui/joy/LinearProgress';
import Typography from '@mui/joy/Typography';
import { useId } from 'react';
import { useTranslation } from 'react-i18next';
import { useSnapshot } from 'valtio';
import { loadingState } from '../document/loading';
import { colors } from '../ui/tokens';

/** How far a document is that takes its time to load; covers the page, because its sheets are about to be replaced. */
export function LoadingProgress() {
  const { t } = useTranslation();
  const labelId = useId();
  const { fraction } = useSnapshot(loadingState);
  if (fraction === null) return null;
  return (
    <Box
      sx={{
        position: 'fixed',
        inset: 0,
        zIndex: 'modal',
        display: 'grid',
        placeContent: 'center',
        gap: 1.5,
        gridTemplateColumns: 'min(24rem, 80vw)',
        background: colors.body,
      }}
    >
      <Typography id={labelId}>{t('messages.document.load.progress')}</Typography>
      <LinearProgress determinate value={Math.round(fraction * 100)} aria-labelledby={labelId} />
    </Box>
  );
}
