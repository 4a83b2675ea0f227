import Box from '@mui/joy/Box';
import { useDocumentKeys } from '../commands/useDocumentCommands';
import { LoadingProgress } from '../components/LoadingProgress';
import { UnsavedChangesDialog } from '../components/UnsavedChangesDialog';
import { useDocumentDrop } from '../components/useDocumentDrop';
import { isVsCode } from '../host/hostFlags';
import { FadingOutlet } from './FadingOutlet';
import { Rail } from './Rail';
import { useLeaveGuards } from './useLeaveGuards';

/** The full window: the rail at the left, the route's content beside it. An editor brings a rail of its own. */
export function Frame() {
  useDocumentKeys();
  useDocumentDrop();
  useLeaveGuards();
  return (
    <Box
      sx={{
        display: 'grid',
        gridTemplateColumns: isVsCode ? 'minmax(0, 1fr)' : 'auto minmax(0, 1fr)',
        gridTemplateRows: 'minmax(0, 1fr)',
        width: '100vw',
        height: '100vh',
        overflow: 'hidden',
      }}
    >
      {!isVsCode && <Rail />}
      <FadingOutlet />
      <UnsavedChangesDialog />
      <LoadingProgress />
    </Box>
  );
}
