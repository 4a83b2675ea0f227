import { useEffect } from 'react';
import { useLocation } from 'react-router';
import { backGuard, onBeforeUnload, onReloadKey } from '../actions/leaveGuards';

/** Keeps unsaved work from being lost by a reload, by going back or by closing the tab. */
export function useLeaveGuards(): void {
  const location = useLocation();
  useEffect(() => backGuard.note(), [location]);
  useEffect(() => {
    window.addEventListener('beforeunload', onBeforeUnload);
    window.addEventListener('keydown', onReloadKey, { capture: true });
    return () => {
      window.removeEventListener('beforeunload', onBeforeUnload);
      window.removeEventListener('keydown', onReloadKey, { capture: true });
    };
  }, []);
}
