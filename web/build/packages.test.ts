import { describe, expect, test } from 'vitest';
import { packageFolders } from './packages';

describe('packageFolders', () => {
  test.each([
    { name: 'a module', module: '/web/node_modules/react/cjs/react.js', folder: '/web/node_modules/react' },
    { name: 'a module of a scope', module: '/web/node_modules/@a/b/c.js', folder: '/web/node_modules/@a/b' },
    {
      name: 'a nested package',
      module: '/w/node_modules/a/node_modules/b/c.js',
      folder: '/w/node_modules/a/node_modules/b',
    },
    { name: 'a virtual module', module: '\0/w/node_modules/a/b.js?commonjs', folder: '/w/node_modules/a' },
    { name: 'a path on Windows', module: 'C:\\w\\node_modules\\a\\b.js', folder: 'C:/w/node_modules/a' },
  ])('finds the package of $name', ({ module, folder }) => {
    expect(packageFolders([module])).toEqual([folder]);
  });

  test('names every package once, and none for modules of the page', () => {
    const modules = [
      '/w/node_modules/b/1.js',
      '/w/src/main.tsx',
      '\0rolldown/runtime.js',
      '/w/node_modules/a/1.js',
      '/w/node_modules/b/2.js',
    ];
    expect(packageFolders(modules)).toEqual(['/w/node_modules/a', '/w/node_modules/b']);
  });
});
