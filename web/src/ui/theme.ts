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
  palette: { mode: 'dark', colorScheme: 'dark' },
  getColorSchemeSelector: (scheme: string) => `[data-joy-color-scheme="${scheme}"] &`,
} as unknown as Theme;
