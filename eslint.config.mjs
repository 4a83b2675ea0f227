import { defineConfig, globalIgnores } from 'eslint/config';
import reactHooks from 'eslint-plugin-react-hooks';
import importSort from 'eslint-plugin-simple-import-sort';
import tseslint from 'typescript-eslint';

const tests = ['tests/**', '**/*.test.*', 'web/src/testing/**'];

export default defineConfig(
  globalIgnores(['build/', 'web/dist/', 'web/coverage/']),
  { linterOptions: { reportUnusedDisableDirectives: 'error' } },
  tseslint.configs.strictTypeChecked,
  {
    languageOptions: { parserOptions: { projectService: true, tsconfigRootDir: import.meta.dirname } },
    plugins: { 'simple-import-sort': importSort },
    rules: {
      'simple-import-sort/imports': ['error', { groups: [['^', '^\\.\\.', '^\\.']] }],
      'simple-import-sort/exports': 'error',

      // An underscore says that something is left out, or only waited for, on purpose.
      '@typescript-eslint/no-unused-vars': [
        'error',
        { argsIgnorePattern: '^_', varsIgnorePattern: '^_', destructuredArrayIgnorePattern: '^_' },
      ],
      '@typescript-eslint/restrict-template-expressions': ['error', { allowNumber: true, allowBoolean: true }],
      // Leaving early with "return stop();" is as plain as it gets.
      '@typescript-eslint/no-confusing-void-expression': 'off',
      // noUncheckedIndexedAccess asks for a "!" wherever an index is known to be in range.
      '@typescript-eslint/no-non-null-assertion': 'off',
      // An interface that may wait has implementations that need not.
      '@typescript-eslint/require-await': 'off',
      // Stores and services are records of functions that know no "this".
      '@typescript-eslint/unbound-method': 'off',
      // Strings are spread into their code points and records into changed copies; neither has more to lose.
      '@typescript-eslint/no-misused-spread': 'off',
    },
  },
  {
    files: ['web/src/**'],
    extends: [reactHooks.configs.flat.recommended],
    rules: {
      // Takes a ref that a component is given for a value that must not change.
      'react-hooks/immutability': 'off',
      // Wants the compiler's way to write what works as it is: useMemo(createSelector, []).
      'react-hooks/use-memo': 'off',
    },
  },
  {
    files: tests,
    rules: {
      // What comes out of JSON and out of the page is of any type; the expectations look into it.
      '@typescript-eslint/no-unsafe-argument': 'off',
      '@typescript-eslint/no-unsafe-assignment': 'off',
      '@typescript-eslint/no-unsafe-call': 'off',
      '@typescript-eslint/no-unsafe-member-access': 'off',
      '@typescript-eslint/no-unsafe-return': 'off',
      '@typescript-eslint/no-dynamic-delete': 'off',
    },
  },
  // Only "declare var" makes a global that is also a property of globalThis.
  { files: ['**/*.d.ts'], rules: { 'no-var': 'off' } },
  { files: ['**/*.{js,cjs,mjs}'], extends: [tseslint.configs.disableTypeChecked] },
);
