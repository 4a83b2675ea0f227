import react from '@vitejs/plugin-react';
import { defineConfig } from 'vitest/config';
import { themePlugin } from './build/themePlugin.ts';

const model = 'src/model/**/*.test.ts';

export default defineConfig({
  plugins: [react(), themePlugin()],
  test: {
    environment: 'node',
    testTimeout: 30_000, // a busy machine loads a whole page in a test
    projects: [
      // The model keeps no state, so that its files can share what they have loaded.
      { extends: true, test: { name: 'model', include: [model], isolate: false } },
      {
        extends: true,
        test: { name: 'page', include: ['src/**/*.test.{ts,tsx}', 'build/**/*.test.ts'], exclude: [model] },
      },
    ],
    coverage: {
      include: ['src/model/**/*.ts'],
      exclude: [model],
      reporter: [['text', { skipFull: true }]],
      thresholds: { lines: 100, branches: 100, functions: 100, statements: 100 },
    },
  },
});
