/** Longer texts without a blank are shortened; 64 bits in any base and the digits of every base are shown in full. */
const LONGEST_RUN = 64;
const RUN_BEGIN = 24;
const RUN_END = 8;
/** About six lines of a notification. */
const LONGEST_MESSAGE = 280;

/** A message as short as a notification has room for: of long numbers their first and last digits stay. */
export function briefMessage(message: string): string {
  const brief = message.split(' ').map(briefRun).join(' ');
  return brief.length > LONGEST_MESSAGE ? `${brief.slice(0, LONGEST_MESSAGE - 1)}…` : brief;
}

/** Not by a pattern, which an engine takes 60 ms to try on a million digits the first time. */
function briefRun(run: string): string {
  return run.length > LONGEST_RUN && !run.includes('\n') ? `${run.slice(0, RUN_BEGIN)}…${run.slice(-RUN_END)}` : run;
}
