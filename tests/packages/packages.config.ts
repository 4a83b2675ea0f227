import { defineConfig } from '@playwright/test';
import shared from '../e2e/browser.config';

// What scripts/package made, as users install and start it.
export default defineConfig({
  ...shared,
  outputDir: '../../build/test-results/packages',
  globalSetup: ['../e2e/support/linux/buildTools', '../e2e/support/windows/prepareWine'],
  reporter: [['list'], ['../e2e/support/shared/summaryReporter', { part: 'packages' }]],
  projects: [{ name: 'packages', testDir: '.' }],
});
