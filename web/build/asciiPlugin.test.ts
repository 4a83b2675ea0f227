import { runInNewContext } from 'node:vm';
import { expect, test } from 'vitest';
import { inAscii } from './asciiPlugin';

const evaluated = (code: string): unknown => runInNewContext(code);

test.each(['`two’s complement …`', '"−→↑"', "'\\xA0©'", '`🎨 ${1 + 1}`'])('the text %s stays the same', (code) => {
  const escaped = inAscii(code);
  expect(escaped).toMatch(/^[\0-\x7f]*$/);
  expect(evaluated(escaped)).toBe(evaluated(code));
});

test('a regular expression finds the same', () => {
  expect(evaluated(`${inAscii('/^[−…]+🎨$/u')}.test("−…🎨")`)).toBe(true);
  expect(evaluated(`${inAscii('/^[−…]+$/')}.test("a")`)).toBe(false);
});

test('what is ASCII already stays as it is', () => {
  expect(inAscii('let a = "\\n\\u2026"')).toBe('let a = "\\n\\u2026"');
});
