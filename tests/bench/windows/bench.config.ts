import { defineConfig } from '@playwright/test';

// Playwright's runner starts wine, the screen and Chromium as for the tests; nothing here can fail but the start itself.
export default defineConfig({
  testMatch: 'start.ts',
  outputDir: '../../../build/test-results/bench-windows',
  globalSetup: '../../e2e/support/windows/prepareWine',
  workers: 1,
  timeout: 600_000,
  reporter: [['dot']],
});
