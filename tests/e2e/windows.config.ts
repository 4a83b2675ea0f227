import { defineConfig } from '@playwright/test';

// The Windows executable as it is, under wine. Only its browser runtime is another: it drives Debian's Chromium.
export default defineConfig({
  testDir: 'windows',
  outputDir: '../../build/test-results/windows',
  globalSetup: './support/windows/prepareWine',
  fullyParallel: true,
  forbidOnly: true,
  workers: 4, // a story waits as long as it works
  retries: process.env.CI ? 2 : 0, // the keyboard of a busy desktop can be taken away between two keys
  timeout: 120_000,
  expect: { timeout: 30_000 }, // a busy machine takes longer than the runner's own five seconds
  reporter: [['list'], ['./support/shared/summaryReporter', { part: 'windows' }]],
});
