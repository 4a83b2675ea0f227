import { defineConfig } from '@playwright/test';

const minutes = Number(process.env.TESSARY_SOAK_MINUTES ?? 30);

// Playwright's runner starts the screen and the program as for the tests.
export default defineConfig({
  testMatch: 'soak.ts',
  outputDir: '../../../build/test-results/bench-soak',
  globalSetup: '../../e2e/support/linux/buildTools',
  workers: 1,
  timeout: (minutes + 5) * 60_000,
  reporter: [['dot']],
});
