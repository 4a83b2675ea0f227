import type { Reporter, Suite } from '@playwright/test/reporter';

/** Ends the run with one line of counts that scripts can read, such as "e2e: 41 passed, 0 failed". */
export default class SummaryReporter implements Reporter {
  readonly #part: string;
  #suite: Suite | undefined;

  constructor({ part = 'e2e' }: { part?: string } = {}) {
    this.#part = part;
  }

  onBegin(_config: unknown, suite: Suite) {
    this.#suite = suite;
  }

  onEnd() {
    const counts = { expected: 0, unexpected: 0, flaky: 0, skipped: 0 };
    for (const test of this.#suite?.allTests() ?? []) counts[test.outcome()]++;
    const skipped = counts.skipped > 0 ? `, ${counts.skipped} skipped` : '';
    console.log(`${this.#part}: ${counts.expected + counts.flaky} passed, ${counts.unexpected} failed${skipped}`);
  }
}
