import Box from '@mui/joy/Box';
import Tooltip from '@mui/joy/Tooltip';
import type { ReactNode } from 'react';
import { useTranslation } from 'react-i18next';
import { Link, useLocation } from 'react-router';
import { WordsIcon } from '../components/WordsIcon';
import { colors } from '../ui/tokens';

const WORDS_ROUTE = '/tools/words';

/** The narrow column at the left that leads to every tool. */
export function Rail() {
  const { t } = useTranslation();
  const { pathname } = useLocation();
  return (
    <Box
      component="nav"
      aria-label={t('frame.rail')}
      sx={{ display: 'flex', flexDirection: 'column', gap: 1, padding: 0.75, background: colors.body }}
    >
      <RailLink to="/" label={t('frame.about')}>
        <img src="/favicon.svg" alt="" width={32} height={32} />
      </RailLink>
      <RailLink to={WORDS_ROUTE} label={t('tools.words.name')} active={pathname.endsWith('tools/words')}>
        <WordsIcon />
      </RailLink>
    </Box>
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
    <Tooltip title={label} placement="right">
      <Box
        component={Link}
        to={to}
        aria-label={label}
        aria-current={active ? 'page' : undefined}
        sx={{
          display: 'grid',
          placeItems: 'center',
          width: 44,
          height: 44,
          color: '#c3cad5',
          border: '1px solid transparent',
          borderRadius: '2px 16px 2px 16px',
          '&:hover': { background: '#ffffff14' },
          '&[aria-current]': { borderColor: '#284497bd', color: colors.accent, background: 'midnightblue' },
        }}
      >
        {children}
      </Box>
    </Tooltip>
  );
}
