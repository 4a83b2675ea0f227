import cc from 'classcat';
import { useSnapshot } from 'valtio';
import { editorProblem } from '../actions/editorStartup';
import { useDocumentKeys } from '../commands/useDocumentCommands';
import { KeysDialog } from '../components/KeysDialog';
import { LoadingProgress } from '../components/LoadingProgress';
import { UnsavedChangesDialog } from '../components/UnsavedChangesDialog';
import { useDocumentDrop } from '../components/useDocumentDrop';
import { isVsCode } from '../host/hostFlags';
import { ProblemPage } from '../pages/ProblemPage';
import { useHeldEnter } from '../ui/heldEnter';
import { useLongTexts } from '../ui/longText';
import { FadingOutlet } from './FadingOutlet';
import styles from './Frame.module.css';
import { Rail } from './Rail';
import { useLeaveGuards } from './useLeaveGuards';

/** The full window: the rail at the left, the route's content beside it. An editor brings a rail of its own. */
export function Frame() {
  useHeldEnter();
  useLongTexts();
  useDocumentKeys();
  useDocumentDrop();
  useLeaveGuards();
  const { text: problem } = useSnapshot(editorProblem);
  return (
    <div className={cc([styles.frame, !isVsCode && styles.withRail])}>
      {!isVsCode && <Rail />}
      <FadingOutlet instead={problem !== null && <ProblemPage text={problem} />} />
      <UnsavedChangesDialog />
      <KeysDialog />
      <LoadingProgress />
    </div>
  );
}
