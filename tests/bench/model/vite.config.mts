export default {
  build: {
    ssr: 'bench.ts',
    target: 'es2023',
    minify: true,
    outDir: '../../../build/bench/model',
    emptyOutDir: true,
    rollupOptions: { output: { entryFileNames: 'bench.mjs' } },
  },
};
