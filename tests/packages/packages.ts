import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';

const root = fileURLToPath(new URL('../../', import.meta.url));
const packages = `${root}build/packages`;

export const { version } = JSON.parse(readFileSync(`${root}web/package.json`, 'utf8')) as { version: string };
const architecture = run('dpkg', '--print-architecture').trim();

export const debianPackage = `${packages}/tessary_${version}_${architecture}.deb`;
export const windowsZip = `${packages}/tessary-${version}-windows-x64.zip`;
export const windowsInstaller = `${packages}/tessary-${version}-windows-x64-setup.exe`;
export const webZip = `${packages}/tessary-${version}-web.zip`;
export const vscodePackage = `${packages}/tessary-${version}.vsix`;

type Target = 'linux' | 'windows' | 'web' | 'vscode';

/** Runs a command that has to succeed, and gives what it prints. */
export function run(command: string, ...args: string[]): string {
  return execFileSync(command, args, { encoding: 'utf8', stdio: ['ignore', 'pipe', 'pipe'], maxBuffer: 1e8 });
}

/** The names of the files in a zip, in alphabetical order. */
export function filesIn(zip: string): string[] {
  const names = run('unzip', '-Z1', zip).trim().split('\n');
  return names.filter((name) => !name.endsWith('/')).sort();
}

/** What a package is made of: the page's libraries by the bundler's list, the host's by what the linker was given. */
export function librariesIn(target: Target): string[] {
  const page = bundledIn('page-packages.json');
  if (target === 'vscode') return [...new Set([...page, ...bundledIn('extension-packages.json')])];
  if (target === 'web') return page;
  const commands = run('ninja', '-C', `${root}build/${target}`, '-t', 'commands', 'tessary');
  const linked = [...commands.matchAll(/\/deps\/\w+\/lib\/lib([\w-]+)\.a/g)].map(([, name]) => name!);
  if (linked.length === 0) throw new Error('The linker was given no library: is the build of another form now?');
  // Brotli comes in three parts; the others named here are headers only.
  const host = linked.map((name) => name.replace(/^brotli.*/, 'brotli'));
  return [...new Set([...host, 'cpp-httplib', 'libargparse', 'webview', ...page])];
}

/** The names of the npm packages that a bundler listed. */
function bundledIn(list: string): string[] {
  const folders = JSON.parse(readFileSync(`${root}build/${list}`, 'utf8')) as string[];
  return folders.map((folder) => folder.split('node_modules/').at(-1)!);
}

/** The libraries that a text with licences is about, by its headings or, in Debian's format, by its lists of files. */
export function namedIn(licences: string): string[] {
  const files = [...licences.matchAll(/^(?:Files:)? libraries\/(.+)$/gm)].map(([, name]) =>
    name!.replace(/-\d.*$/, ''),
  );
  if (files.length > 0) return files;
  const headings = [...licences.replaceAll('\r', '').matchAll(/^-{80}\n([^]*?)\n-{80}\n/gm)];
  return headings.flatMap(([, names]) => names!.split('\n').map((line) => line.split(' ')[0]!));
}

/** The libraries that a package is made of and that its text with licences does not name. */
export function withoutLicence(target: Target, licences: string): string[] {
  const named = namedIn(licences);
  const libraries = librariesIn(target).map((name) => (name === 'fmt' ? 'fmtlib' : name));
  return libraries.filter((name) => !named.includes(name));
}
