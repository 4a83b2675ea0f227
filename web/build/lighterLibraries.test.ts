import { readFileSync } from 'node:fs';
import { describe, expect, test } from 'vitest';
import { withoutEffects } from './pureRouterPlugin.ts';
import { withShortNames } from './shortNamesPlugin.ts';

const REACT_DOM = new URL('../node_modules/react-dom/cjs/react-dom-client.production.js', import.meta.url);

describe('short names', () => {
  test('replace whole names of fields alone', () => {
    expect(withShortNames('a.memoizedState = { memoizedState: 1, unmemoizedState: 2, memoizedStates: 3 }')).toBe(
      'a.$0 = { $0: 1, unmemoizedState: 2, memoizedStates: 3 }',
    );
  });

  test('are names that React DOM has for nothing else, and shorten it by more than 13 kB', () => {
    const code = readFileSync(REACT_DOM, 'utf8');
    expect(code).not.toMatch(/(?<![\w$])\$\w\b/);
    const short = withShortNames(code);
    expect(code.length - short.length).toBeGreaterThan(13_000);
    // As many kinds of names as before: none was given twice.
    expect(new Set(short.match(/[\w$]+/g)).size).toBe(new Set(code.match(/[\w$]+/g)).size);
  });
});

describe('the router without effects', () => {
  test('has components that can be left out, and the same code otherwise', () => {
    const code = 'var Link = React10.forwardRef(render);\nLink.displayName = "Link";\nvar a = React10.useRef(1);\n';
    expect(withoutEffects(code)).toBe(
      'var Link = /* @__PURE__ */ React10.forwardRef(render);\n\nvar a = React10.useRef(1);\n',
    );
  });
});
