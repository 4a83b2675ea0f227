import { startTransition, useEffect, useState } from 'react';
import { type Snapshot, snapshot, subscribe } from 'valtio';

/**
 * What a state holds, rendered after the frame that its change belongs to: for a part of the page that tells of another one,
 * which is to show the change first.
 */
export function useLaterSnapshot<State extends object>(state: State): Snapshot<State> {
  const [shown, setShown] = useState(() => snapshot(state));
  useEffect(() => {
    const follow = () => startTransition(() => setShown(snapshot(state)));
    follow(); // it may have changed since the first render
    return subscribe(state, follow);
  }, [state]);
  return shown;
}
