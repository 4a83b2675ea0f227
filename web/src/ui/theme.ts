import { extendTheme } from '@mui/joy/styles';
import { colors, mono } from './tokens';

const sans = "'Inter', system-ui, sans-serif";

export const theme = extendTheme({
  fontFamily: { body: sans, display: sans, code: mono },
  // Inter comes in one weight; headings differ by size and colour instead of a synthesized bold.
  fontWeight: { sm: 400, md: 400, lg: 400, xl: 400 },
  components: {
    // The library's blue has too little contrast on the content's background.
    JoyLink: { styleOverrides: { root: { color: colors.link } } },
  },
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
});

// There is no light mode: its variables would be made, written as a style sheet and read by the browser for nothing.
delete (theme.colorSchemes as Partial<typeof theme.colorSchemes>).light;
