import { create } from 'zustand';
import type { FileHandle } from '../host/fileHandle';
import { isVsCode } from '../host/hostFlags';
import { type ChangeCause, currentCause } from './changeCause';
import { applyStep, type DocumentStep, isReplaced, joinSteps, stepBetween } from './documentStep';
import { currentGesture } from './gesture';
import type { SheetsState } from './sheetsState';
import { useSheetsStore } from './sheetsStore';

/*
 * Undo and redo of the open document, by steps that hold what they changed. zundo was looked at: it keeps whole states
 * of one store and has no place for what a step is called, joins none, and does not follow what is saved.
 */

/** A step with its name and the gesture that made it. */
export interface HistoryStep {
  readonly difference: DocumentStep;
  readonly cause: ChangeCause | undefined;
  readonly gesture: number;
  /**
   * For a step that replaced the document: how far from the step's two ends the saved state of either document is, in
   * steps; undefined where none is.
   */
  readonly saved?: { readonly before: number | undefined; readonly after: number | undefined };
}

export interface History {
  /** The last step is the one that is undone next. */
  readonly past: readonly HistoryStep[];
  /** The last step is the one that is redone next. */
  readonly future: readonly HistoryStep[];
  /** How many steps lead to what is saved in the file; undefined where none does. */
  readonly savedDepth: number | undefined;
}

/** Steps beyond this number are forgotten, the oldest first. */
export const LONGEST_HISTORY = 1000;

const noSteps = (isUnsaved: boolean): History => ({ past: [], future: [], savedDepth: isUnsaved ? undefined : 0 });

export const useHistory = create<History>()(() => noSteps(useSheetsStore.getState().isUnsaved));

let isApplying = false;
/** The state before the step that `inOneStep` is making. */
let stepBegin: SheetsState | undefined;

// An editor has a history of its own.
if (!isVsCode) useSheetsStore.subscribe(record);

/** Makes one step of everything that `change` does to the document. */
export function inOneStep(change: () => void): void {
  stepBegin = useSheetsStore.getState();
  const before = stepBegin;
  try {
    change();
  } finally {
    stepBegin = undefined;
    record(useSheetsStore.getState(), before);
  }
}

/** The step that led to the state of the document; undefined where the history begins. */
export function historyPoint(): HistoryStep | undefined {
  return useHistory.getState().past.at(-1);
}

/** Notes that a file holds the state that `historyPoint` gave, though the document has been edited since. */
export function noteSavedAt(point: HistoryStep | undefined): void {
  const { past, future } = useHistory.getState();
  const depth = [...past, ...[...future].reverse()].findIndex((step) => step === point) + 1;
  const isReachable = point ? depth > 0 : past.length < LONGEST_HISTORY;
  useHistory.setState({ savedDepth: isReachable ? depth : undefined });
}

/** Takes the last step back. @returns it, or undefined when there is none */
export function undo(): HistoryStep | undefined {
  const { past, future, savedDepth } = useHistory.getState();
  const step = past.at(-1);
  if (!step) return undefined;
  const depth = past.length - 1;
  useHistory.setState({
    past: past.slice(0, -1),
    future: [...future, leaving(step, 'after', distance(savedDepth, past.length))],
    savedDepth: step.saved ? depthAt(step.saved.before, depth) : savedDepth,
  });
  apply(step, 'before');
  return step;
}

/** Makes the step again that was taken back last. @returns it, or undefined when there is none */
export function redo(): HistoryStep | undefined {
  const { past, future, savedDepth } = useHistory.getState();
  const step = future.at(-1);
  if (!step) return undefined;
  useHistory.setState({
    past: [...past, leaving(step, 'before', distance(savedDepth, past.length))],
    future: future.slice(0, -1),
    savedDepth: step.saved ? depthAt(step.saved.after, past.length + 1) : savedDepth,
  });
  apply(step, 'after');
  return step;
}

/** A step that replaced the document, with the place where the document that is left now was saved in the meantime. */
function leaving(step: HistoryStep, end: 'before' | 'after', saved: number | undefined): HistoryStep {
  const { file } = step.difference;
  if (!step.saved || !file) return step;
  const { documentFile } = useSheetsStore.getState();
  return {
    ...step,
    difference: { ...step.difference, file: { ...file, [end]: documentFile } },
    saved: { ...step.saved, [end]: saved },
  };
}

/**
 * Forgets what was done since a gesture began, as if it had never been; it cannot be redone either.
 * @param gesture - as `currentGesture` gave it
 */
export function forgetSince(gesture: number): void {
  for (let step = historyPoint(); step && step.gesture >= gesture && !step.saved; step = historyPoint()) {
    useHistory.setState(({ past }) => ({ past: past.slice(0, -1) }));
    apply(step, 'before');
  }
}

function distance(savedDepth: number | undefined, depth: number): number | undefined {
  return savedDepth === undefined ? undefined : savedDepth - depth;
}

function depthAt(distance: number | undefined, depth: number): number | undefined {
  return distance === undefined || depth + distance < 0 ? undefined : depth + distance;
}

function apply(step: HistoryStep, end: 'before' | 'after'): void {
  const target = applyStep(useSheetsStore.getState(), step.difference, end);
  const { past, savedDepth } = useHistory.getState();
  const isUnsaved = target.documentFile !== null && past.length !== savedDepth;
  isApplying = true;
  try {
    useSheetsStore.setState({ ...target, isUnsaved });
  } finally {
    isApplying = false;
  }
}

function record(now: SheetsState, before: SheetsState): void {
  if (isApplying || stepBegin) return;
  if (now.sheets === before.sheets) {
    if (!now.isUnsaved && now.documentFile !== null) noteSaved();
    return;
  }
  const difference = stepBetween(before, now);
  if (isReplaced(before, now)) recordReplacement(before, now, difference);
  else if (difference) recordEdit(difference);
}

/** What is saved now is where the history stands. */
function noteSaved(): void {
  useHistory.setState(({ past }) => ({ savedDepth: past.length }));
}

/** A document that its file holds needs no way back, and neither does having had none. One without a file may be nowhere else. */
function recordReplacement(before: SheetsState, now: SheetsState, difference: DocumentStep | undefined): void {
  const { past, savedDepth } = useHistory.getState();
  const isWorthKeeping =
    before.documentFile === null ? past.length > 0 : before.isUnsaved || !hasPlace(before.documentFile);
  if (!difference || !isWorthKeeping) {
    useHistory.setState(noSteps(now.isUnsaved));
    return;
  }
  const saved = { before: distance(reachable(savedDepth), past.length), after: now.isUnsaved ? undefined : 0 };
  push({ difference, cause: undefined, gesture: currentGesture(), saved }, now.isUnsaved ? undefined : past.length + 1);
}

/** Saving in the native host also ends, without a word, with a dialog that was cancelled. */
function hasPlace({ path, handle }: FileHandle): boolean {
  return path !== undefined || handle !== undefined;
}

function recordEdit(difference: DocumentStep): void {
  const { past, savedDepth } = useHistory.getState();
  const cause = currentCause();
  const gesture = currentGesture();
  const last = past.at(-1);
  const isContinued =
    last?.cause !== undefined &&
    last.gesture === gesture &&
    last.cause.kind === cause?.kind &&
    savedDepth !== past.length;
  if (!isContinued) {
    push({ difference, cause, gesture }, reachable(savedDepth));
    return;
  }
  const joined = { ...last, difference: joinSteps(last.difference, difference) };
  useHistory.setState({ past: [...past.slice(0, -1), joined], future: [], savedDepth: reachable(savedDepth) });
}

/** What would have been redone is given up by the next step, and with it a saved state that lies there. */
function reachable(savedDepth: number | undefined): number | undefined {
  return savedDepth !== undefined && savedDepth <= useHistory.getState().past.length ? savedDepth : undefined;
}

/** @param savedDepth - as it is after the step */
function push(step: HistoryStep, savedDepth: number | undefined): void {
  const steps = [...useHistory.getState().past, step];
  const forgotten = Math.max(0, steps.length - LONGEST_HISTORY);
  useHistory.setState({
    past: steps.slice(forgotten),
    future: [],
    savedDepth: savedDepth === undefined ? undefined : depthAt(savedDepth, -forgotten),
  });
}
