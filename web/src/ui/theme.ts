import type { Theme } from '@mui/joy/styles';

/** What the theme of `themeOptions` is for a component; `build/theme.ts` makes it and the style sheet with its variables. */
const data = JSON.parse(THEME_DATA) as Pick<Theme, 'breakpoints' | 'vars'>;

export const theme = {
  ...data,
  spacing: (...counts: number[]) => counts.map((count) => `${8 * count}px`).join(' '),
  breakpoints: {
    ...data.breakpoints,
    up: (name: keyof typeof data.breakpoints.values) => `@media (min-width:${data.breakpoints.values[name]}px)`,
  },
  colorSchemes: { dark: { palette: { mode: 'dark' } } },
  // The provider asks for those of each colour scheme and for those that all have in common.
  generateCssVars: (scheme?: string) => ({ css: {}, vars: scheme === undefined ? data.vars : {} }),
} as unknown as Theme;
