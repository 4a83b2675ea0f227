import { AnimatePresence, usePresence } from 'framer-motion';
import { type CSSProperties, type ReactNode, useLayoutEffect, useRef } from 'react';
import { flushSync } from 'react-dom';
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
  useLayoutEffect(() => {
    if (isPresent) return;
    // Before the next frame, but once whoever waits for it knows that it leaves.
    if (!page.current!.hasChildNodes()) return queueMicrotask(() => flushSync(safeToRemove));
    const timer = setTimeout(safeToRemove, FADE);
    return () => clearTimeout(timer);
  }, [isPresent, safeToRemove]);
  return (
    <div ref={page} inert={!isPresent} className={styles.page} style={FADING}>
      {children}
    </div>
  );
}
