import { useEffect } from 'react';
import { useLocation } from 'react-router';
import { backGuard, onBeforeUnload } from '../actions/leaveGuards';

/** Keeps unsaved work from being lost by going back or by closing the tab. */
export function useLeaveGuards(): void {
  const location = useLocation();
  useEffect(() => backGuard.note(), [location]);
  useEffect(() => {
    window.addEventListener('beforeunload', onBeforeUnload);
    return () => window.removeEventListener('beforeunload', onBeforeUnload);
  }, []);
}
