import type { KeyboardEvent, ReactNode } from 'react';
import textStyles from './text.module.css';

interface ActionLinkProps {
  onActivate: () => void;
  children?: ReactNode;
}

/** A link without an address: it acts in the page or through the host, so a browser could not follow it. */
export function ActionLink({ onActivate, children }: ActionLinkProps) {
  // Without an address the element is no link to the browser, so its role and keys are given by hand.
  const activateOnEnter = (event: KeyboardEvent) => {
    if (event.key !== 'Enter') return;
    event.preventDefault(); // a dialog that opens now would take the rest of the press for its own
    onActivate();
  };
  return (
    <a role="link" tabIndex={0} className={textStyles.link} onClick={onActivate} onKeyDown={activateOnEnter}>
      {children}
    </a>
  );
}
