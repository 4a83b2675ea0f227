import type { Reporter, Suite } from '@playwright/test/reporter';
import { appendFileSync } from 'node:fs';

/**
 * Ends the run with one line of counts that scripts can read, such as "browser: 41 passed, 0 failed". A story that passed
 * at a later try only is named before that, and in the file that TESSARY_RETRIED names.
 */
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
    const tests = this.#suite?.allTests() ?? [];
    const counts = { expected: 0, unexpected: 0, flaky: 0, skipped: 0 };
    for (const test of tests) {
      counts[test.outcome()]++;
      if (test.outcome() === 'flaky') this.#reportRetry(test.titlePath().filter(Boolean).join(' › '));
    }
    const skipped = counts.skipped > 0 ? `, ${counts.skipped} skipped` : '';
    console.log(`${this.#part}: ${counts.expected + counts.flaky} passed, ${counts.unexpected} failed${skipped}`);
  }

  #reportRetry(story: string) {
    const line = `${this.#part}: passed at a later try only: ${story}`;
    console.log(line);
    if (process.env.TESSARY_RETRIED) appendFileSync(process.env.TESSARY_RETRIED, `${line}\n`);
  }
}
