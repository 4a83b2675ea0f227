// @vitest-environment jsdom
import { expect, test } from 'vitest';
import { decode } from './decodeEntities';

test.each([
  ['a &amp; b', 'a & b'],
  ['&lt;b&gt; &quot;x&quot; &#39;y&#39;', '<b> "x" \'y\''],
  ['&#x41;&#66;', 'AB'],
  ['&nbsp;&mdash;', '\u00a0—'],
  ['plain <b>text</b>', 'plain <b>text</b>'],
  ['', ''],
])('%s is read as %s', (text, decoded) => {
  expect(decode(text)).toBe(decoded);
});
