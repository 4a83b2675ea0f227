import { defineConfig } from '@playwright/test';

// Playwright's runner starts the screen and the program as for the tests; no time fails, only an action that does nothing.
export default defineConfig({
  testMatch: 'frames.ts',
  outputDir: '../../../build/test-results/bench-frames',
  globalSetup: '../../e2e/support/linux/buildTools',
  workers: 1,
  timeout: 1_800_000,
  reporter: [['dot']],
});
