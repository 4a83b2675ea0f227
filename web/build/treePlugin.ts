import { readdirSync, statSync } from 'node:fs';
import { join, sep } from 'node:path';
import type { Plugin } from 'vite';
import { treeProblems } from './tree.ts';

/** Stops the build when the folder it wrote is not the tree that the host embeds. */
export function treePlugin(): Plugin {
  let folder = '';
  return {
    name: 'tessary-tree',
    apply: 'build',
    enforce: 'post',
    configResolved(config) {
      folder = config.build.outDir;
    },
    closeBundle: {
      order: 'post',
      sequential: true,
      handler() {
        const files = readdirSync(folder, { recursive: true, encoding: 'utf8' })
          .filter((file) => statSync(join(folder, file)).isFile())
          .map((file) => file.split(sep).join('/'));
        const problems = treeProblems(files);
        if (problems.length > 0) throw new Error(problems.join('\n'));
      },
    },
  };
}
