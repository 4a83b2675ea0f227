import LinearProgress from '@mui/joy/LinearProgress';
import { useId } from 'react';
import { useTranslation } from 'react-i18next';
import { useSnapshot } from 'valtio';
import { loadingState } from '../document/loading';
import textStyles from '../ui/text.module.css';
import styles from './LoadingProgress.module.css';

/** How far a document is that takes its time to load; covers the page, because its sheets are about to be replaced. */
export function LoadingProgress() {
  const { t } = useTranslation();
  const labelId = useId();
  const { fraction } = useSnapshot(loadingState);
  if (fraction === null) return null;
  return (
    <div className={styles.cover}>
      <p id={labelId} className={textStyles.body}>
        {t('messages.document.load.progress')}
      </p>
      <LinearProgress determinate value={Math.round(fraction * 100)} aria-labelledby={labelId} />
    </div>
  );
}
