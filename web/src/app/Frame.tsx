import cc from 'classcat';
import { useDocumentKeys } from '../commands/useDocumentCommands';
import { KeysDialog } from '../components/KeysDialog';
import { LoadingProgress } from '../components/LoadingProgress';
import { UnsavedChangesDialog } from '../components/UnsavedChangesDialog';
import { useDocumentDrop } from '../components/useDocumentDrop';
import { isVsCode } from '../host/hostFlags';
import { FadingOutlet } from './FadingOutlet';
import styles from './Frame.module.css';
import { Rail } from './Rail';
import { useLeaveGuards } from './useLeaveGuards';

/** The full window: the rail at the left, the route's content beside it. An editor brings a rail of its own. */
export function Frame() {
  useDocumentKeys();
  useDocumentDrop();
  useLeaveGuards();
  return (
    <div className={cc([styles.frame, !isVsCode && styles.withRail])}>
      {!isVsCode && <Rail />}
      <FadingOutlet />
      <UnsavedChangesDialog />
      <KeysDialog />
      <LoadingProgress />
    </div>
  );
}
