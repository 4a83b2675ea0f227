import { defineConfig } from '@playwright/test';

// The real program in its real window. TESSARY_EXECUTABLE names another build of it, such as one with sanitizers.
export default defineConfig({
  testDir: 'host',
  outputDir: '../../build/test-results/host',
  globalSetup: './support/buildTools',
  fullyParallel: true,
  forbidOnly: true,
  workers: 2,
  timeout: 120_000,
  reporter: [['list'], ['./support/closingLine', { part: 'host' }]],
});
