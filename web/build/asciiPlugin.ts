import type { Plugin } from 'vite';

/** Writes all beyond ASCII as escapes, as strings, templates and regular expressions know them. */
export function inAscii(code: string): string {
  return code.replaceAll(/[^\0-\x7f]/g, (unit) => `\\u${unit.charCodeAt(0).toString(16).padStart(4, '0')}`);
}

/** Engines keep and read a script with a byte for each character, unless one of them needs two. */
export function asciiPlugin(): Plugin {
  return {
    name: 'tessary-ascii',
    apply: 'build',
    generateBundle(_options, bundle) {
      for (const each of Object.values(bundle)) {
        if (each.type === 'chunk') each.code = inAscii(each.code);
      }
    },
  };
}
