import JoyLink from '@mui/joy/Link';
import type { KeyboardEvent, ReactNode } from 'react';
import { hasExternalUrlOpener } from '../host/hostFlags';

interface ExternalLinkProps {
  href: string;
  children: ReactNode;
}

/** A link that leaves the page: through the host where it opens links, else in a new tab. */
export function ExternalLink({ href, children }: ExternalLinkProps) {
  if (!hasExternalUrlOpener) {
    return (
      <JoyLink href={href} target="_blank" rel="noopener noreferrer">
        {children}
      </JoyLink>
    );
  }
  // The host's answer is of no use here: it shows the outcome itself, in the program it starts.
  const open = () => void window.openExternalUrl?.(new URL(href, document.baseURI).href);
  // Without an address the element is no link to the browser, so its role and keys are given by hand.
  const openOnEnter = (event: KeyboardEvent) => {
    if (event.key === 'Enter') open();
  };
  return (
    <JoyLink component="a" role="link" tabIndex={0} onClick={open} onKeyDown={openOnEnter}>
      {children}
    </JoyLink>
  );
}
