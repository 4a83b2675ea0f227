/** Something to measure. It gives a number that depends on its work, so that no engine can leave the work out. */
export interface Task {
  readonly name: string;
  readonly run: (round: number) => number;
}

const ROUNDS = 15;
const MILLISECONDS_PER_ROUND = 10;

let total = 0;

/**
 * Runs tasks in turns, so that whatever else the machine does falls on all of them.
 * @returns the nanoseconds of one call of each, from its fastest turn
 */
export function measure(tasks: readonly Task[]): number[] {
  const calls = tasks.map(callsPerRound);
  const best = tasks.map(() => Infinity);
  for (let round = 0; round < ROUNDS; round++) {
    for (const [place, task] of tasks.entries()) {
      const perCall = (time(task, calls[place]!) / calls[place]!) * 1e6;
      best[place] = Math.min(best[place]!, perCall);
    }
  }
  if (!Number.isFinite(total)) throw new Error('A task gave no number.');
  return best;
}

// Doubling also warms the task up.
function callsPerRound(task: Task): number {
  let calls = 1024;
  while (time(task, calls) < MILLISECONDS_PER_ROUND) calls *= 2;
  return calls;
}

function time({ run }: Task, calls: number): number {
  const start = performance.now();
  for (let call = 0; call < calls; call++) total += run(call);
  return performance.now() - start;
}
