import { mkdirSync, writeFileSync } from 'node:fs';
import { dirname, relative } from 'node:path';
import type { Plugin } from 'vite';
import { packageFolders } from './packages.ts';

/** Writes down in `file` which npm packages the page is made of, so that packages can carry their licences. */
export function packagesPlugin(file: string): Plugin {
  let root = '';
  return {
    name: 'tessary-packages',
    apply: 'build',
    configResolved(config) {
      root = config.root;
    },
    generateBundle() {
      const folders = packageFolders(this.getModuleIds()).map((folder) => relative(root, folder));
      mkdirSync(dirname(file), { recursive: true });
      writeFileSync(file, `${JSON.stringify(folders, null, 2)}\n`);
    },
  };
}
