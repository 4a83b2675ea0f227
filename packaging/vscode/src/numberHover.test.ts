import { afterEach, expect, test, vi } from 'vitest';
import type { Hover, HoverProvider, TextDocument } from 'vscode';

const settings = vi.hoisted(() => ({ 'hover.enabled': true }));
vi.mock('vscode', () => ({
  Hover: class {
    constructor(readonly contents: unknown) {}
  },
  MarkdownString: class {
    value = '';
    appendMarkdown(text: string) {
      this.value += text;
      return this;
    }
  },
  Range: Object,
  workspace: { getConfiguration: () => ({ get: (name: keyof typeof settings) => settings[name] }) },
}));
const { numberHover } = await import('./numberHover');

afterEach(() => (settings['hover.enabled'] = true));

/** What is shown where the pointer rests at a column of a line. */
function shown(text: string, character: number): string | undefined {
  const document = { lineAt: () => ({ text }) } as unknown as TextDocument;
  const args = [document, { line: 0, character }] as unknown as Parameters<HoverProvider['provideHover']>;
  const hover = numberHover.provideHover(...args) as Hover | undefined;
  return hover && (hover.contents as unknown as { value: string }).value;
}

test('a number of 8 digits is shown in other forms', () => {
  expect(shown('mask = 0xdeadbeef;', 10)).toContain('3_735_928_559');
});

test.each([
  ['a shorter number', 'mask = 0xdead;', 10],
  ['beside the number', 'mask = 0xdeadbeef;', 2],
  ['in a line of data without a break', `0xdeadbeef ${'0'.repeat(10_000)}`, 4],
])('nothing is shown for %s', (_, text, character) => {
  expect(shown(text, character)).toBeUndefined();
});

test('nothing is shown where the setting turns it off', () => {
  settings['hover.enabled'] = false;
  expect(shown('mask = 0xdeadbeef;', 10)).toBeUndefined();
});
