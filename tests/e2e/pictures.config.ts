import { defineConfig } from '@playwright/test';
import shared from './browser.config';

// Not a test: draws the pictures of docs/ from the built page.
export default defineConfig({
  ...shared,
  workers: 1,
  projects: [{ name: 'pictures', testDir: 'pictures', testIgnore: 'vscode/**' }], // the extension's is drawn in its editor
});
