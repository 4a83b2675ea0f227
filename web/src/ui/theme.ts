import { extendTheme } from '@mui/joy/styles';

const sans = "'Inter', system-ui, sans-serif";
/** Digits of equal width, so that words of one width line up. */
const mono = "ui-monospace, 'Cascadia Mono', Consolas, 'DejaVu Sans Mono', 'Liberation Mono', monospace";

/** Colours of the frame that components share. */
export const colors = {
  /** Behind everything. */
  body: '#0f1214',
  /** Behind the content. */
  content: '#282c34',
  /** What is chosen: text on its background. */
  accent: '#ffca00',
  activeTab: '#2d0e5d',
  link: '#8fc1ff',
} as const;

export const theme = extendTheme({
  fontFamily: { body: sans, display: sans, code: mono },
  // Inter comes in one weight; headings differ by size and colour instead of a synthesized bold.
  fontWeight: { sm: 400, md: 400, lg: 400, xl: 400 },
  components: {
    // Within the page's landmarks, where assistive technology looks for content.
    JoyTooltip: { defaultProps: { disablePortal: true } },
    // The library's blue has too little contrast on the content's background.
    JoyLink: { styleOverrides: { root: { color: colors.link } } },
  },
  colorSchemes: {
    dark: {
      palette: {
        background: { body: colors.body },
        text: { primary: '#eceff4', secondary: '#c3cad5', tertiary: '#a3adbb' },
      },
    },
  },
});
