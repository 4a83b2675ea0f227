import type { SnackbarProvider } from 'notistack';
import { useLayoutEffect, useState } from 'react';
import { setNoticePlace, whenNoticesAreWanted } from './notifications';

/** The place where notifications appear. Their library is made ready with the first one, which few starts show. */
export function Notices() {
  const [Place, setPlace] = useState<typeof SnackbarProvider>();
  // Before the first frame, as there may be something to report by then.
  useLayoutEffect(
    () =>
      whenNoticesAreWanted(() => void import('notistack').then((library) => setPlace(() => library.SnackbarProvider))),
    [],
  );
  if (!Place) return null;
  return (
    <Place
      ref={setNoticePlace}
      dense
      maxSnack={3}
      autoHideDuration={5000}
      anchorOrigin={{ vertical: 'bottom', horizontal: 'right' }}
    />
  );
}
