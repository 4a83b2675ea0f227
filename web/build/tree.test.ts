import { describe, expect, test } from 'vitest';
import { treeProblems } from './tree';

const subsets = ['cyrillic', 'cyrillic-ext', 'greek', 'greek-ext', 'latin', 'latin-ext', 'vietnamese'];
const complete = [
  ...[16, 32, 48, 64, 128, 192, 256, 512].map((size) => `app-icons/app-${size}.png`),
  'apple-touch-icon.png',
  'favicon.ico',
  'favicon.png',
  'favicon.svg',
  'assets/index-8iq7H6gC.js',
  'assets/index-CNsrXRXE.css',
  ...subsets.flatMap((subset) => ['woff', 'woff2'].map((type) => `assets/inter-${subset}-400-normal-C38f_H4-.${type}`)),
  'index.html',
  'manifest.webmanifest',
  'sw.js',
  'workbox-e3490c72.js',
];

describe('treeProblems', () => {
  test('accepts the complete tree of 32 files', () => {
    expect(complete).toHaveLength(32);
    expect(treeProblems(complete)).toEqual([]);
  });

  test('names a file that does not belong', () => {
    expect(treeProblems([...complete, 'assets/index-8iq7H6gC.js.map'])).toEqual([
      'Unexpected file in the build: assets/index-8iq7H6gC.js.map',
    ]);
  });

  test('counts: a second script chunk and a missing font are both reported', () => {
    const files = [...complete.filter((file) => !file.includes('greek-ext-400')), 'assets/index-AAAAAAAA.js'];
    const problems = treeProblems(files);
    expect(problems).toHaveLength(2);
    expect(problems[0]).toContain('found 2');
    expect(problems[1]).toContain('found 12');
  });
});
