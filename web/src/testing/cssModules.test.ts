import { globSync, readFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { expect, test } from 'vitest';

const src = join(import.meta.dirname, '..');
const sheets = globSync('**/*.module.css', { cwd: src });

/** Names of classes by style sheet, as components use them. */
const used = new Map<string, Set<string>>(sheets.map((sheet) => [sheet, new Set()]));
for (const file of globSync('**/*.tsx', { cwd: src })) {
  const source = readFileSync(join(src, file), 'utf8');
  for (const [, name, path] of source.matchAll(/^import (\w+) from '(.+\.module\.css)';$/gm)) {
    const classes = used.get(join(dirname(file), path!))!;
    for (const [, each] of source.matchAll(new RegExp(`\\b${name}\\.(\\w+)`, 'g'))) classes.add(each!);
  }
}

function definedIn(sheet: string): Set<string> {
  const text = readFileSync(join(src, sheet), 'utf8').replace(/\/\*.*?\*\//gs, '');
  // The selectors alone: a declaration may have dots in its numbers.
  const selectors = text.replace(/\{[^{}]*\}/g, '');
  return new Set([...selectors.matchAll(/\.([a-zA-Z]\w*)/g)].map(([, name]) => name!));
}

// The compiler knows no class names: a misspelt one would show only as a missing style.
test.each(sheets)('%s has the classes that its components use, and no others', (sheet) => {
  const defined = definedIn(sheet);
  expect(defined.size).toBeGreaterThan(0);
  expect([...used.get(sheet)!].sort()).toEqual([...defined].sort());
});
