import { extendTheme } from '@mui/joy/styles';
import { describe, expect, test } from 'vitest';
import { buildTheme, withoutFallbacks } from './theme.ts';
import { themeOptions } from './themeOptions.ts';

const { css, data } = buildTheme();
const theme = JSON.parse(data) as Record<'variants' | 'typography', Record<string, Record<string, unknown>>>;

describe('the theme that is made when the page is built', () => {
  test('has a variable in its style sheet for each one that components use', () => {
    const used = [...new Set(data.match(/--joy-[\w-]+/g))];
    expect(used.length).toBeGreaterThan(100);
    expect(used.filter((name) => !css.includes(`${name}:`))).toEqual([]);
  });

  test('brings the baseline, dark alone, and the colours of the page', () => {
    expect(css).toContain('*,*::before,*::after{box-sizing:inherit;}');
    expect(css).toContain('[data-joy-color-scheme="dark"]{');
    expect(css).not.toContain('[data-joy-color-scheme="light"]');
    expect(css).toContain('--joy-palette-background-body:#0f1214;');
    expect(css).toContain('--color-content:#282c34;');
  });

  test("is the library's in what it holds", () => {
    const whole = extendTheme(themeOptions);
    expect(Object.keys(theme.variants)).toEqual(Object.keys(whole.variants));
    expect(Object.keys(theme.typography)).toEqual(Object.keys(whole.typography));
    expect(theme.variants.solid!.primary).toMatchObject({
      backgroundColor: 'var(--variant-solidBg, var(--joy-palette-primary-solidBg))',
    });
  });
});

test('a use of a variable loses what stands in for it only where the variable is defined', () => {
  const use = 'var(--variant-a, var(--joy-a, var(--joy-b, rgba(1 2 3 / 0.5)))) var(--joy-c, 1px)';
  expect(withoutFallbacks(use, ':root{--joy-a:1;--joy-b:2}')).toBe('var(--variant-a, var(--joy-a)) var(--joy-c, 1px)');
});
