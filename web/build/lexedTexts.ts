import { Lexer } from 'marked';
import { fileURLToPath } from 'node:url';
import * as texts from '../src/pages/welcomeTexts.ts';

const TEXTS_FILE = fileURLToPath(new URL('../src/pages/welcomeTexts.ts', import.meta.url));

/** The tokens of a Markdown text, as JSON, without the parts of the text that they were made from. */
export function lexed(text: string): string {
  return JSON.stringify(Lexer.lex(text), (key, value: unknown) => (key === 'raw' ? undefined : value));
}

/** A module that stands for the Markdown library: it has the tokens of the page's texts, and lexes no others. */
export function lexedTextsCode(): string {
  const pairs = Object.entries(texts).map(([name, text]) => `[texts.${name}, ${lexed(text)}]`);
  return `import * as texts from ${JSON.stringify(TEXTS_FILE)};
    const tokens = new Map([${pairs.join()}]);
    export class Marked { defaults = {}; lexer = (text) => tokens.get(text); }`;
}
