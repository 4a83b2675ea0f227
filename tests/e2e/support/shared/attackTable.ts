import { test } from '@playwright/test';
import type { Reporter, TestCase, TestResult } from '@playwright/test/reporter';

const TYPE = 'attack';

interface Attack {
  attack: string;
  tries: string;
  outcome: string;
}

/** Says what this story has tried and seen, for the table of `scripts/faults`. Call it when all is seen. */
export function noteAttack(attack: string, tries: string, outcome: string): void {
  test
    .info()
    .annotations.push({ type: TYPE, description: JSON.stringify({ attack, tries, outcome } satisfies Attack) });
}

/** Prints what the stories of a run have tried as a table. What a failed story was to show stands there as failed. */
export default class AttackTable implements Reporter {
  readonly #rows: Attack[] = [];

  onTestEnd(story: TestCase, { status, annotations }: TestResult) {
    const attacks = annotations.filter(({ type }) => type === TYPE).map(({ description = '' }) => description);
    if (status === 'passed') this.#rows.push(...attacks.map((attack) => JSON.parse(attack) as Attack));
    else if (status !== 'skipped') this.#rows.push({ attack: story.title, tries: '1', outcome: `**${status}**` });
  }

  onEnd() {
    if (this.#rows.length === 0) return;
    console.log('| attack | tries | outcome |');
    console.log('| --- | --- | --- |');
    for (const { attack, tries, outcome } of this.#rows) console.log(`| ${attack} | ${tries} | ${outcome} |`);
  }
}
