/** JSON of the theme, put in by build/themePlugin.ts. */
declare const THEME_DATA: string;
