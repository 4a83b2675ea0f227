import type { Plugin } from 'vite';

/** The letters of the page's own texts. */
const FIRST_FONT = /inter-latin-400-normal[^/]*\.woff2$/;

/** Text waits for its font, which comes from the same machine, instead of being painted in another one first. */
export function withoutSwap(css: string): string {
  return css.replaceAll('font-display: swap', 'font-display: block');
}

/** Asks for the font that the page begins with as soon as for its script. */
export function fontPlugin(): Plugin {
  let base = '';
  return {
    name: 'tessary-font',
    apply: 'build',
    enforce: 'pre',
    configResolved(config) {
      base = config.base;
    },
    transform: (code, id) => (id.includes('/@fontsource/') ? { code: withoutSwap(code), map: null } : null),
    transformIndexHtml: {
      order: 'post',
      handler(_html, { bundle = {} }) {
        const font = Object.keys(bundle).find((name) => FIRST_FONT.test(name));
        if (font === undefined) throw new Error('The bundle has no font for the first text.');
        const attrs = { rel: 'preload', as: 'font', type: 'font/woff2', crossorigin: '', href: base + font };
        return [{ tag: 'link', attrs, injectTo: 'head' }];
      },
    },
  };
}
