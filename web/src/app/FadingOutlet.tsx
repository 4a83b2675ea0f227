import { AnimatePresence, usePresence } from 'framer-motion';
import { type CSSProperties, type ReactNode, useEffect, useRef } from 'react';
import { useLocation, useOutlet } from 'react-router';
import styles from './FadingOutlet.module.css';

/** How long a page takes to come or to go, in milliseconds. */
const FADE = 70;
const FADING = { '--fade': `${FADE}ms` } as CSSProperties;

/** The content of the current route, or what is shown instead. The old one fades out before the new one fades in. */
export function FadingOutlet({ instead }: { instead?: ReactNode }) {
  const outlet = useOutlet();
  const { pathname } = useLocation();
  return (
    <div className={styles.outlet}>
      <AnimatePresence mode="wait">
        <FadingPage key={instead ? 'instead' : pathname}>{instead || outlet}</FadingPage>
      </AnimatePresence>
    </div>
  );
}

/**
 * Fades by style sheet and leaves by clock, so that a window that draws nothing at the moment changes its page as well. A
 * page with nothing on it has nothing to fade out.
 */
function FadingPage({ children }: { children: ReactNode }) {
  const [isPresent, safeToRemove] = usePresence();
  const page = useRef<HTMLDivElement>(null);
  useEffect(() => {
    if (isPresent) return;
    if (!page.current!.hasChildNodes()) return safeToRemove();
    const timer = setTimeout(safeToRemove, FADE);
    return () => clearTimeout(timer);
  }, [isPresent, safeToRemove]);
  return (
    <div ref={page} inert={!isPresent} className={styles.page} style={FADING}>
      {children}
    </div>
  );
}
