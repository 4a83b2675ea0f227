import type { Plugin } from 'vite';
import { lexedTextsCode } from './lexedTexts.ts';

interface StandIn {
  /** The import that is replaced, as the library writes it. */
  readonly part: string;
  /** The library whose files import it so. */
  readonly of: string;
  /** The module that takes its place. */
  readonly code: string;
}

/** What the component library checks of its own theme before the page's takes its place; making it takes as long as the page's. */
const NO_THEME = 'export default { colorSchemes: { light: {}, dark: {} } };';

/** Parts of libraries that the page's use of them never reaches, but which they import. */
export const STAND_INS: readonly StandIn[] = [
  // Colours for the content of boxes with `invertedColors`, 13 kB.
  {
    part: '../colorInversion',
    of: '@mui/joy',
    code: 'export const applySolidInversion = () => ({}); export const applySoftInversion = () => ({});',
  },
  // For what is outside of a theme's provider, as nothing is.
  { part: './defaultTheme', of: '@mui/joy', code: NO_THEME },
  // Its parent's default theme, 5 kB.
  { part: './createTheme', of: '@mui/system', code: 'export default () => ({});' },
  // The wheel in buttons with `loading`, 6 kB.
  { part: '../CircularProgress', of: '@mui/joy', code: 'export default () => null;' },
  // For `withTheme`, 3 kB with what it needs.
  { part: 'hoist-non-react-statics', of: '@emotion/react', code: 'export default (target) => target;' },
  // Which attributes HTML knows, 4 kB: the component library decides itself what it hands on.
  { part: '@emotion/is-prop-valid', of: '@emotion/styled', code: 'export default () => true;' },
  // The Markdown library, 29 kB: the page's texts are lexed when it is built.
  { part: 'marked', of: 'marked-react', code: lexedTextsCode() },
];

const PREFIX = '\0stand-in:';

/** Leaves out of the bundle what `STAND_INS` names. */
export function standInsPlugin(): Plugin {
  const used = new Set<number>();
  return {
    name: 'tessary-stand-ins',
    apply: 'build',
    enforce: 'pre',
    buildStart: () => used.clear(),
    resolveId(source, importer = '') {
      const found = STAND_INS.findIndex(({ part, of }) => part === source && importer.includes(`/node_modules/${of}/`));
      if (found < 0) return null;
      used.add(found);
      return `${PREFIX}${found}`;
    },
    load: (id) => (id.startsWith(PREFIX) ? STAND_INS[Number(id.slice(PREFIX.length))]!.code : null),
    buildEnd() {
      const unused = STAND_INS.filter((_, index) => !used.has(index));
      if (unused.length > 0)
        throw new Error(`No library imports ${unused.map(({ part }) => part).join(', ')} any more.`);
    },
  };
}
