/** Digits of equal width, so that words of one width line up. */
export const mono = "ui-monospace, 'Cascadia Mono', Consolas, 'DejaVu Sans Mono', 'Liberation Mono', monospace";

/** Colours that components share. */
export const colors = {
  /** Behind everything. */
  body: '#0f1214',
  /** Behind the content. */
  content: '#282c34',
  /** Behind what lies on the content: bars and words. */
  card: '#20242b',
  /** Behind a text that can be edited. */
  field: '#15181d',
  line: '#3d4451',
  /** Around what can be edited: three times as bright as what it lies on. */
  edge: '#737d8c',
  text: '#eceff4',
  secondary: '#c3cad5',
  dim: '#a3adbb',
  /** Of numbers and lines that matter less than what they belong to. */
  faint: '#98a2b1',
  faintest: '#8d97a6',
  /** Over what the pointer is at. */
  hover: '#ffffff14',
  /** What is chosen: text, line and background. */
  accent: '#ffca00',
  chosenLine: '#284497',
  chosen: 'midnightblue',
  activeTab: '#2d0e5d',
  link: '#8fc1ff',
  /** Around bits that are chosen. */
  range: '#ff8ad8',
} as const;

/** The above as custom properties for style sheets, named such as --mono and --color-accent. */
export const tokenProperties = {
  '--mono': mono,
  ...Object.fromEntries(Object.entries(colors).map(([name, color]) => [`--color-${name}`, color])),
};
