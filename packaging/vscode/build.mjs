// Makes what the extension's package holds, of the page in FOLDER/page and of src: node build.mjs FOLDER
import { cpSync, readdirSync, readFileSync, renameSync, rmSync, writeFileSync } from 'node:fs';
import { join, relative } from 'node:path';
import { fileURLToPath } from 'node:url';
import { rolldown } from 'rolldown';
import { packageFolders } from '../../web/build/packages.ts';

const root = fileURLToPath(new URL('../../', import.meta.url));
const here = join(root, 'packaging/vscode');
const [folder] = process.argv.slice(2);
const page = join(folder, 'page');

/** Bundles one script. @returns the folders of the npm packages in it */
async function bundle(input, format, file) {
  const build = await rolldown({
    input: join(here, 'src', input),
    external: ['vscode'],
    platform: format === 'cjs' ? 'node' : 'browser',
    resolve: { mainFields: ['module', 'main'] },
    tsconfig: join(here, 'tsconfig.json'),
  });
  const { output } = await build.write({ file: join(folder, file), format, minify: true });
  await build.close();
  return packageFolders(output.flatMap(({ moduleIds }) => moduleIds ?? []));
}

/** A text with something replaced that has to be in it. */
function replaced(text, pattern, replacement) {
  if (!new RegExp(pattern).test(text)) throw new Error(`The built page has nothing like ${pattern} any more`);
  return text.replace(pattern, replacement);
}

/** As strict as the page's own policy, which counts on coming from a server. */
const POLICY = [
  "default-src 'none'",
  "script-src 'nonce-@nonce@'",
  "style-src @source@ 'unsafe-inline'",
  'font-src @source@',
  'img-src @source@ data:',
  "base-uri 'none'",
  "form-action 'none'",
].join('; ');

/** The built page with marks where a web view's own addresses, policy and nonce go. */
function preparedPage() {
  const edits = [
    [/<meta\s+http-equiv="[^>]*>\s*/g, ''],
    [/<link rel="(?:icon|apple-touch-icon|manifest)"[^>]*>\s*/g, ''],
    [/(src|href)="\.?\/(?=assets\/)/g, '$1="@base@/'],
    [/<script /g, '<script nonce="@nonce@" '],
    ['<head>', `<head><meta http-equiv="Content-Security-Policy" content="${POLICY}" />`],
    [/(?=<script )/, '<script nonce="@nonce@" src="@base@/bridge.js"></script>'],
  ];
  return edits.reduce((text, [from, to]) => replaced(text, from, to), readFileSync(join(page, 'index.html'), 'utf8'));
}

/** An editor shows no icons of the page, and reads the newer of the two kinds of font files. */
function removeUnused() {
  const unused = readdirSync(page, { recursive: true }).filter(
    (name) => !/^(?:index\.html|assets(?:\/.*[^f])?)$/.test(name),
  );
  for (const name of unused) rmSync(join(page, name), { recursive: true, force: true });
}

/** Name, version and description are the page's; what only building needs is left out. */
function manifest() {
  const { displayName, version, description } = JSON.parse(readFileSync(join(root, 'web/package.json'), 'utf8'));
  const own = JSON.parse(readFileSync(join(here, 'package.json'), 'utf8'));
  const { type: _, dependencies: _bundled, devDependencies: _tools, ...rest } = own;
  return JSON.stringify({ ...rest, displayName, version, description }, null, 2);
}

renameSync(join(page, 'app-icons/app-256.png'), join(folder, 'icon.png'));
removeUnused();
writeFileSync(join(page, 'index.html'), preparedPage());
writeFileSync(join(folder, 'package.json'), manifest());
for (const name of ['README.md', 'words.png', 'grammar.json']) cpSync(join(here, name), join(folder, name));
const packages = [
  await bundle('extension.ts', 'cjs', 'extension.cjs'),
  await bundle('bridge.ts', 'iife', 'page/bridge.js'),
];
// From the page's folder, as the list of the page's own packages.
const folders = [...new Set(packages.flat())].map((each) => relative(join(root, 'web'), each));
writeFileSync(join(root, 'build/extension-packages.json'), JSON.stringify(folders, null, 2));
