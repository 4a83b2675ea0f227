import { fileURLToPath } from 'node:url';
import { defineConfig } from 'vitest/config';

// The editor's own module is there only inside it.
const vscode = fileURLToPath(new URL('src/fakeEditor.ts', import.meta.url));

export default defineConfig({
  resolve: { alias: { vscode } },
  test: { include: ['src/**/*.test.ts'], environment: 'node' },
});
