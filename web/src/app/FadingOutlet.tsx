import Box from '@mui/joy/Box';
import { AnimatePresence, usePresence } from 'framer-motion';
import { type ReactNode, useEffect } from 'react';
import { useLocation, useOutlet } from 'react-router';
import { colors } from '../ui/tokens';

/** How long a page takes to come or to go, in milliseconds. */
const FADE = 150;

/** The content of the current route. The old one fades out before the new one fades in. */
export function FadingOutlet() {
  const outlet = useOutlet();
  const { pathname } = useLocation();
  return (
    <Box sx={{ background: colors.content, minHeight: 0, overflow: 'hidden' }}>
      <AnimatePresence mode="wait">
        <FadingPage key={pathname}>{outlet}</FadingPage>
      </AnimatePresence>
    </Box>
  );
}

/** Fades by style sheet and leaves by clock, so that a window that draws nothing at the moment changes its page as well. */
function FadingPage({ children }: { children: ReactNode }) {
  const [isPresent, safeToRemove] = usePresence();
  useEffect(() => {
    if (isPresent) return;
    const timer = setTimeout(safeToRemove, FADE);
    return () => clearTimeout(timer);
  }, [isPresent, safeToRemove]);
  return (
    <Box
      inert={!isPresent}
      sx={{
        height: '100%',
        opacity: isPresent ? 1 : 0,
        transition: `opacity ${FADE}ms`,
        animation: `fade-in ${FADE}ms`,
        '@media (prefers-reduced-motion: reduce)': { transition: 'none', animation: 'none' },
      }}
    >
      {children}
    </Box>
  );
}
