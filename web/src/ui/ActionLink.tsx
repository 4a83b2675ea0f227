import JoyLink from '@mui/joy/Link';
import type { KeyboardEvent, ReactNode } from 'react';

interface ActionLinkProps {
  onAct: () => void;
  children?: ReactNode;
}

/** A link without an address: it acts in the page or through the host, so a browser could not follow it. */
export function ActionLink({ onAct, children }: ActionLinkProps) {
  // Without an address the element is no link to the browser, so its role and keys are given by hand.
  const actOnEnter = (event: KeyboardEvent) => {
    if (event.key === 'Enter') onAct();
  };
  return (
    <JoyLink component="a" role="link" tabIndex={0} onClick={onAct} onKeyDown={actOnEnter}>
      {children}
    </JoyLink>
  );
}
