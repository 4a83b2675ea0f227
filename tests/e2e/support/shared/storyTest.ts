import type { RunningProgram } from './runningProgram';

/** Declares a story that holds on every system: it opens the program and looks at it, and needs nothing else. */
export type StoryTest = (
  title: string,
  story: (given: { open: (args?: string[]) => Promise<RunningProgram> }) => Promise<void>,
) => void;
