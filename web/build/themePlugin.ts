import type { Plugin } from 'vite';
import { buildTheme } from './theme.ts';

/** Puts the theme that is made when the page is built into `theme.ts` and `theme.css`. */
export function themePlugin(): Plugin {
  const { css, data } = buildTheme();
  return {
    name: 'tessary-theme',
    enforce: 'pre',
    config: () => ({ define: { THEME_DATA: JSON.stringify(data) } }),
    transform: (_code, id) => (id.endsWith('/src/ui/theme.css') ? { code: css, map: null } : null),
  };
}
