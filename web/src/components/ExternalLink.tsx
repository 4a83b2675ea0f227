import type { ReactNode } from 'react';
import { hasExternalUrlOpener } from '../host/hostFlags';
import { ActionLink } from '../ui/ActionLink';
import textStyles from '../ui/text.module.css';

interface ExternalLinkProps {
  href: string;
  children: ReactNode;
}

/** A link that leaves the page: through the host where it opens links, else in a new tab. */
export function ExternalLink({ href, children }: ExternalLinkProps) {
  if (hasExternalUrlOpener) {
    // The host shows the outcome itself, in the program that it starts; its answer is of no use here.
    const open = () => void window.openExternalUrl?.(new URL(href, document.baseURI).href);
    return <ActionLink onActivate={open}>{children}</ActionLink>;
  }
  return (
    <a className={textStyles.link} href={href} target="_blank" rel="noopener noreferrer">
      {children}
    </a>
  );
}
