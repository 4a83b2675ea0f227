import { readFileSync } from 'node:fs';
import { extname } from 'node:path';
import type { Plugin } from 'vite';
import { renderIcons } from './icons.ts';

const DEV_TYPES: Record<string, string> = { '.png': 'image/png', '.svg': 'image/svg+xml', '.ico': 'image/x-icon' };

/** Puts the icons drawn in `svgFile` into the build, and serves the same files while developing. */
export function iconPlugin(svgFile: string): Plugin {
  return {
    name: 'tessary-icons',
    configureServer(server) {
      const icons = renderIcons(readFileSync(svgFile, 'utf8'));
      server.middlewares.use((request, response, next) => {
        const name = (request.url ?? '').slice(1);
        const icon = icons.get(name);
        if (icon === undefined) return next();
        response.setHeader('Content-Type', DEV_TYPES[extname(name)]!);
        response.end(icon);
      });
    },
    generateBundle() {
      this.addWatchFile(svgFile);
      for (const [fileName, source] of renderIcons(readFileSync(svgFile, 'utf8'))) {
        this.emitFile({ type: 'asset', fileName, source });
      }
    },
  };
}
