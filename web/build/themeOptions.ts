import type { CssVarsThemeOptions } from '@mui/joy/styles';
import { colors, mono } from '../src/ui/tokens.ts';

const sans = "'Inter', system-ui, sans-serif";

/** What the page has otherwise than the component library. There is no light mode. */
export const themeOptions: CssVarsThemeOptions = {
  fontFamily: { body: sans, display: sans, code: mono },
  // Inter comes in one weight; headings differ by size and colour instead of a synthesized bold.
  fontWeight: { sm: 400, md: 400, lg: 400, xl: 400 },
  colorSchemes: {
    dark: {
      palette: {
        // The library's own blue can hardly be seen on the content's background.
        focusVisible: colors.accent,
        background: { body: colors.body },
        text: { primary: colors.text, secondary: colors.secondary, tertiary: colors.dim },
      },
    },
  },
};
