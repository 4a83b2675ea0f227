import { Lexer, type Token } from 'marked';
import { ReactParser, ReactRenderer } from 'marked-react';
import { createElement, Fragment } from 'react';
import { renderToStaticMarkup } from 'react-dom/server';
import { expect, test } from 'vitest';
import * as texts from '../src/pages/welcomeTexts.ts';
import { lexed } from './lexedTexts.ts';

const markup = (tokens: Token[]) =>
  renderToStaticMarkup(createElement(Fragment, null, new ReactParser({ renderer: new ReactRenderer() }).parse(tokens)));

test.each(Object.entries(texts))('%s looks as it does when it is lexed in the page', (_, text) => {
  expect(markup(JSON.parse(lexed(text)) as Token[])).toBe(markup(Lexer.lex(text)));
});
