import { defineConfig } from '@playwright/test';
import { execFileSync } from 'node:child_process';

/**
 * Debian's browser without its windows, which takes half of the processor time; nothing is downloaded for the tests.
 */
const chromium = execFileSync('sh', ['-c', 'command -v chromium-headless-shell'], {
  encoding: 'utf8',
}).trim();

export default defineConfig({
  outputDir: '../../build/test-results/browser',
  fullyParallel: true,
  forbidOnly: true,
  workers: 2,
  retries: process.env.CI ? 1 : 0,
  timeout: 120_000,
  expect: { timeout: 30_000 }, // a busy machine takes longer than the runner's own five seconds
  reporter: [['list'], ['./support/shared/summaryReporter', { part: 'browser' }]],
  use: {
    viewport: { width: 800, height: 600 },
    launchOptions: {
      executablePath: chromium,
      args: [
        '--no-sandbox',
        '--disable-gpu',
        '--disable-quic',
        '--no-first-run',
        '--disable-background-networking',
        '--disable-component-update',
        '--disable-sync',
      ],
    },
  },
  projects: [
    { name: 'support', testDir: 'support' },
    { name: 'browser', testDir: 'browser', use: { serviceWorkers: 'block' } }, // what is kept for one costs time in every story
  ],
});
