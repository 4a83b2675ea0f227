import react from '@vitejs/plugin-react';
import { defineConfig } from 'vitest/config';

export default defineConfig({
  plugins: [react()],
  test: {
    include: ['src/**/*.test.{ts,tsx}', 'build/**/*.test.ts'],
    environment: 'node',
    testTimeout: 30_000, // a busy machine loads a whole page in a test
    coverage: {
      include: ['src/**/*.{ts,tsx}'],
      exclude: ['src/**/*.test.{ts,tsx}'],
      thresholds: {
        'src/model/**/*.ts': { lines: 100, branches: 100, functions: 100, statements: 100 },
      },
    },
  },
});
