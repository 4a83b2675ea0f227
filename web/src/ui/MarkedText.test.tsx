// @vitest-environment jsdom
import { render } from '@testing-library/react';
import { expect, test } from 'vitest';
import { MarkedText } from './MarkedText';

const parts = { go: (text: string) => <a href="#go">{text}</a>, stop: (text: string) => <b>{text}</b> };

test.each([
  ['<go>Go</go> or <stop>Stop</stop>', '<a href="#go">Go</a> or <b>Stop</b>'],
  ['First <go>go</go>, then <go>again</go>.', 'First <a href="#go">go</a>, then <a href="#go">again</a>.'],
  ['1 < 2 & nothing', '1 &lt; 2 &amp; nothing'],
])('shows the marked parts of "%s" in their own way', (text, html) => {
  expect(render(<MarkedText text={text} parts={parts} />).container.innerHTML).toBe(html);
});
