import type { ReactNode } from 'react';
import { BrowserRouter, MemoryRouter } from 'react-router';
import { isVsCode } from '../host/hostFlags';

/**
 * Where the page's routes live: in the window's address, or in memory in an editor, whose web view has an address of its
 * own. Nothing leads back out of the document there.
 */
export function PageRouter({ children }: { children: ReactNode }) {
  const Router = isVsCode ? MemoryRouter : BrowserRouter;
  return <Router useTransitions={false}>{children}</Router>;
}
