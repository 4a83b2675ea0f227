import { fileURLToPath } from 'node:url';
import { defineConfig } from 'vite';

const here = (path: string) => fileURLToPath(new URL(path, import.meta.url));

export default defineConfig({
  root: here('.'),
  base: '/',
  build: { outDir: here('../../../../build/bench/page'), emptyOutDir: true, target: 'es2022', modulePreload: false },
});
