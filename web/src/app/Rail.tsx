import type { ReactNode } from 'react';
import { useTranslation } from 'react-i18next';
import { Link, useLocation } from 'react-router';
import { WordsIcon } from '../components/WordsIcon';
import { Tooltip } from '../ui/Tooltip';
import styles from './Rail.module.css';

const WORDS_ROUTE = '/tools/words';

/** The narrow column at the left that leads to every tool. */
export function Rail() {
  const { t } = useTranslation();
  const { pathname } = useLocation();
  return (
    <nav aria-label={t('frame.rail')} className={styles.rail}>
      <RailLink to="/" label={t('frame.about')}>
        <img src={`${import.meta.env.BASE_URL}favicon.svg`} alt="" width={32} height={32} />
      </RailLink>
      <RailLink to={WORDS_ROUTE} label={t('tools.words.name')} active={pathname.endsWith('tools/words')}>
        <WordsIcon />
      </RailLink>
    </nav>
  );
}

interface RailLinkProps {
  to: string;
  label: string;
  active?: boolean;
  children: ReactNode;
}

function RailLink({ to, label, active = false, children }: RailLinkProps) {
  return (
    <Tooltip text={label} side="right">
      <Link to={to} aria-label={label} aria-current={active ? 'page' : undefined} className={styles.link}>
        {children}
      </Link>
    </Tooltip>
  );
}
