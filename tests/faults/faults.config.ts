import { defineConfig } from '@playwright/test';

// Faults that take long or need a disk of their own, in the real program.
export default defineConfig({
  outputDir: '../../build/test-results/faults',
  globalSetup: '../e2e/support/linux/buildTools',
  forbidOnly: true,
  workers: 1,
  timeout: 900_000,
  reporter: [['list'], ['../e2e/support/shared/summaryReporter', { part: 'faults' }]],
});
