import { readFileSync } from 'node:fs';
import { runInNewContext } from 'node:vm';
import { describe, expect, test } from 'vitest';
import { withoutLeftOut } from './leftOutPlugin.ts';
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

describe('what is left out of a library', () => {
  test('functions fail with their names, and other ones stay as they are', () => {
    const code = 'function used() { return 1; }\nfunction unused(a) { return a; }\n';
    const short = withoutLeftOut(code, { file: 'a.js', functions: ['unused'] });
    expect(short).toContain('function used() { return 1; }');
    expect(() => evaluate(`${short}; unused(1)`)).toThrow('unused is left out of the bundle');
  });

  test('methods are missing from their classes and prototypes', () => {
    const code =
      'class A { a() { return 1; } b() {} }\nfunction B() {}\nB.prototype.c = function () {};\nB.d = 2;\nB.prototype.e = A.e = () => 3;\n';
    const short = withoutLeftOut(code, { file: 'a.js', methods: ['A.b'], prototypes: ['B'] });
    expect(evaluate(`${short}; [new A().a(), 'b' in new A(), 'c' in new B(), B.d, A.e()]`)).toEqual([
      1,
      false,
      false,
      2,
      3,
    ]);
  });

  test('the build stops where a library has no such name any more', () => {
    expect(() => withoutLeftOut('function a() {}', { file: 'a.js', functions: ['a', 'b'], methods: ['C.d'] })).toThrow(
      'a.js has no b, C.d to leave out.',
    );
  });
});

/** The value of the last of some statements. */
function evaluate(code: string): unknown {
  return runInNewContext(code) as unknown;
}
