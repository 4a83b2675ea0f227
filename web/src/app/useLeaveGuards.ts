import { useEffect } from 'react';
import { onBeforeUnload } from '../actions/leaveGuards';

/** Keeps unsaved work from being lost by closing the tab. */
export function useLeaveGuards(): void {
  useEffect(() => {
    window.addEventListener('beforeunload', onBeforeUnload);
    return () => window.removeEventListener('beforeunload', onBeforeUnload);
  }, []);
}
