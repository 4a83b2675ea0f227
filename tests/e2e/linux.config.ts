import { defineConfig } from '@playwright/test';
import { basename, dirname } from 'node:path';
import { executable } from './support/linux/paths';

// The real program in its real window. TESSARY_EXECUTABLE names another build of it, such as one with sanitizers.
export default defineConfig({
  testDir: 'linux',
  outputDir: `../../build/test-results/${basename(dirname(executable))}`,
  globalSetup: './support/linux/buildTools',
  fullyParallel: true,
  forbidOnly: true,
  workers: 4, // a story waits twice as long as it works
  retries: process.env.CI ? 2 : 0, // the keyboard of a busy desktop can be taken away between two keys
  timeout: 120_000,
  expect: { timeout: 30_000 }, // a busy machine takes longer than the runner's own five seconds
  reporter: [['list'], ['./support/shared/summaryReporter', { part: 'linux' }], ['./support/shared/attackTable']],
});
