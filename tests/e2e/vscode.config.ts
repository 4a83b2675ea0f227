import { defineConfig } from '@playwright/test';
import shared from './browser.config';

// The extension's package in the editor's server build. Nothing here asks the network.
export default defineConfig({
  ...shared,
  outputDir: '../../build/test-results/vscode',
  globalSetup: './support/vscode/installExtension',
  reporter: [['list'], ['./support/shared/summaryReporter', { part: 'vscode' }]],
  use: {
    ...shared.use,
    viewport: { width: 1280, height: 800 },
    actionTimeout: 60_000, // before the story's own end, so that its picture is taken
    screenshot: 'only-on-failure',
    launchOptions: {
      ...shared.use?.launchOptions,
      args: [...(shared.use?.launchOptions?.args ?? []), '--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE 127.0.0.1'],
    },
  },
  projects: [
    { name: 'vscode', testDir: 'vscode' },
    { name: 'pictures', testDir: 'pictures/vscode' }, // not a test: draws the picture of the extension's README
  ],
});
