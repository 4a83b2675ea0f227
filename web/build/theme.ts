import type { Theme } from '@mui/joy/styles';
import { createRequire } from 'node:module';
import { createElement, type FunctionComponent } from 'react';
import { renderToStaticMarkup } from 'react-dom/server';
import { tokenProperties } from '../src/ui/tokens.ts';
import { themeOptions } from './themeOptions.ts';

// The library's files for Node.js are no modules.
const require = createRequire(import.meta.url);
const { CssVarsProvider, extendTheme, useTheme } = require('@mui/joy/styles') as typeof import('@mui/joy/styles');
const { default: CssBaseline } = require('@mui/joy/CssBaseline') as typeof import('@mui/joy/CssBaseline');
const { default: GlobalStyles } = require('@mui/joy/GlobalStyles') as typeof import('@mui/joy/GlobalStyles');

/** What components of the library read of their theme, as far as it is plain data. */
const READ = ['breakpoints', 'focus', 'shadow', 'typography', 'variants', 'vars', 'zIndex'] as const;
/** Colours that no component of the page has. */
const UNUSED_COLORS = new Set(['success', 'warning', 'context']);

export interface BuiltTheme {
  /** Theme variables, baseline and the page's own properties, as the library writes them. */
  readonly css: string;
  /** The theme within the library's provider, as JSON. */
  readonly data: string;
}

/** Has the component library make the page's theme, which takes as long as the page's own start. */
export function buildTheme(): BuiltTheme {
  const theme = extendTheme(themeOptions);
  // Its variables would be made, written and read by the browser for nothing.
  delete (theme.colorSchemes as Partial<typeof theme.colorSchemes>).light;
  let provided: Theme | undefined;
  const Probe: FunctionComponent = () => {
    provided = useTheme();
    return null;
  };
  const markup = renderToStaticMarkup(
    createElement(
      CssVarsProvider,
      { theme, defaultMode: 'dark', defaultColorScheme: 'dark' },
      createElement(CssBaseline),
      createElement(GlobalStyles, { styles: { ':root': tokenProperties } }),
      createElement(Probe),
    ),
  );
  const css = [...markup.matchAll(/<style[^>]*>(.*?)<\/style>/gs)].map(([, rules]) => rules).join('\n');
  const read = Object.fromEntries(
    READ.map((name) => [name, provided![name]]),
  );
  const used = JSON.stringify(read, (name, value: unknown) => (UNUSED_COLORS.has(name) ? undefined : value));
  return { css, data: withoutFallbacks(used, css) };
}

/** Takes what stands in for a variable from each use of one that `css` defines. */
export function withoutFallbacks(text: string, css: string): string {
  const defined = new Set(css.match(/--joy-[\w-]+(?=:)/g));
  const use = /var\((--joy-[\w-]+), ?(?:[^()]|\([^()]*\))*\)/g;
  const shorter = text.replace(use, (whole, name: string) => (defined.has(name) ? `var(${name})` : whole));
  return shorter === text ? text : withoutFallbacks(shorter, css);
}
