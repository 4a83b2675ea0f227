import { AnimatePresence, domMin, LazyMotion } from 'framer-motion';
import * as m from 'framer-motion/m';
import { useLocation, useOutlet } from 'react-router';
import { colors } from './theme';

const FADE = { duration: 0.15 };

/** The content of the current route. The old one fades out before the new one fades in. */
export function FadingOutlet() {
  const outlet = useOutlet();
  const { pathname } = useLocation();
  return (
    <LazyMotion features={domMin} strict>
      <AnimatePresence mode="wait">
        <m.div
          key={pathname}
          initial={{ opacity: 0 }}
          animate={{ opacity: 1 }}
          exit={{ opacity: 0 }}
          transition={FADE}
          style={{ background: colors.content, minHeight: 0, overflow: 'hidden' }}
        >
          {outlet}
        </m.div>
      </AnimatePresence>
    </LazyMotion>
  );
}
