import { expect, test } from '@playwright/test';
import { spawnSync } from 'node:child_process';
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';

const reporter = fileURLToPath(new URL('./summaryReporter.ts', import.meta.url));

/** Runs the stories in a runner of their own and gives the end of what it prints, and the file of later tries. */
function run(stories: string) {
  const folder = test.info().outputPath('run');
  const retried = test.info().outputPath('retried.txt');
  mkdirSync(folder, { recursive: true });
  writeFileSync(retried, '');
  const at = (name: string) => test.info().outputPath('run', name);
  writeFileSync(at('stories.spec.ts'), `import { expect, test } from '@playwright/test';\n${stories}`);
  writeFileSync(
    at('playwright.config.ts'),
    `export default { retries: 1, reporter: [[${JSON.stringify(reporter)}, { part: 'sample' }]] };`,
  );
  const env = { ...process.env, TESSARY_RETRIED: retried, TEST_WORKER_INDEX: undefined };
  const { stdout, status } = spawnSync('npx', ['playwright', 'test'], { cwd: folder, env, encoding: 'utf8' });
  return { lines: stdout.trimEnd().split('\n'), status, retried: readFileSync(retried, 'utf8') };
}

test('a run ends with its counts', () => {
  const { lines, status, retried } = run(`
    test('good', () => {});
    test('bad', () => expect(1).toBe(2));
    test.skip('left out', () => {});
  `);
  expect(lines.at(-1)).toBe('sample: 1 passed, 1 failed, 1 skipped');
  expect(status).toBe(1);
  expect(retried).toBe('');
});

test('a story that passed at a later try only is named', () => {
  const { lines, status, retried } = run(`
    test.describe('now and then', () => {
      test('unlucky', ({}, { retry }) => expect(retry).toBe(1));
    });
    test('good', () => {});
  `);
  const named = 'sample: passed at a later try only: stories.spec.ts › now and then › unlucky';
  expect(lines.slice(-2)).toEqual([named, 'sample: 2 passed, 0 failed']);
  expect(status).toBe(0);
  expect(retried).toBe(`${named}\n`);
});
