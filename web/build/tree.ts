/** One kind of file that the built page consists of. */
interface TreeRule {
  pattern: RegExp;
  count: number;
}

const HASH = '[\\w-]{8}';

/** What the native host embeds and serves; its tests count on this shape, so the build stops when it changes. */
const RULES: readonly TreeRule[] = [
  { pattern: /^app-icons\/app-(16|32|48|64|128|192|256|512)\.png$/, count: 8 },
  { pattern: /^(apple-touch-icon\.png|favicon\.(ico|png|svg))$/, count: 4 },
  { pattern: new RegExp(`^assets/index-${HASH}\\.js$`), count: 1 },
  { pattern: new RegExp(`^assets/index-${HASH}\\.css$`), count: 1 },
  {
    pattern: new RegExp(
      `^assets/inter-(cyrillic|greek|latin)(-ext)?-400-normal-${HASH}\\.woff2?$|^assets/inter-vietnamese-400-normal-${HASH}\\.woff2?$`,
    ),
    count: 14,
  },
  { pattern: /^(index\.html|manifest\.webmanifest|sw\.js)$/, count: 3 },
  { pattern: /^workbox-[\da-f]{8}\.js$/, count: 1 },
];

/**
 * Compares a built tree with the shape that the host expects.
 * @param files - paths relative to the build folder, "/" between parts
 * @returns one sentence per difference; empty when the tree is right
 */
export function treeProblems(files: readonly string[]): string[] {
  const strangers = files.filter((file) => !RULES.some(({ pattern }) => pattern.test(file)));
  const miscounts = RULES.map(({ pattern, count }) => ({
    pattern,
    count,
    found: files.filter((file) => pattern.test(file)).length,
  })).filter(({ count, found }) => count !== found);
  return [
    ...strangers.map((file) => `Unexpected file in the build: ${file}`),
    ...miscounts.map(({ pattern, count, found }) => `Expected ${count} files like ${pattern.source}, found ${found}`),
  ];
}
