// Prints the licences of all that goes into a package: node licences.mjs linux|windows|web|vscode
// What goes in is asked of the builds themselves, so a library that is added later is here as well, or stops this.
import { execFileSync } from 'node:child_process';
import { readdirSync, readFileSync } from 'node:fs';
import { resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

const root = fileURLToPath(new URL('../', import.meta.url));
const GENERATED = /^(.*\/)?generated\/[a-z-]+\//;
const LICENCE_FILE = /^(licen[cs]e|copying)/i;

/** The source archive that a header of the host's libraries comes from, by the first part of its path. */
const ARCHIVES = new Map([
  ['argparse', 'libargparse'],
  ['brotli', 'brotli'],
  ['fmt', 'fmtlib'],
  ['httplib.h', 'cpp-httplib'],
  ['json-c', 'json-c'],
  ['webview.h', 'webview'],
]);

/** Linked into the Windows executable: the C and C++ runtimes, as Debian's compiler packages bring them. */
const WINDOWS_RUNTIMES = ['mingw-w64-common', 'gcc-mingw-w64-base'];

function licenceIn(folder, name) {
  const file = readdirSync(folder).find((each) => LICENCE_FILE.test(each));
  if (file === undefined) throw new Error(`${name} has no licence in ${folder}`);
  return readFileSync(`${folder}/${file}`, 'utf8');
}

/** The first parts of the headers' paths that the program's own sources were compiled with, below the libraries' prefix. */
function includedHeaders(target) {
  const include = `${root}build/deps/${target}/include/`;
  const printed = execFileSync('ninja', ['-C', `${root}build/${target}`, '-t', 'deps'], {
    encoding: 'utf8',
    maxBuffer: 1e9,
  });
  const ofTheProgram = printed.split('\n\n').filter((object) => object.trimStart().startsWith('src/'));
  // A compiler cache may have made the paths relative.
  const headers = ofTheProgram
    .flatMap((object) => object.split('\n').slice(1))
    .map((line) => resolve(`${root}build/${target}`, line.trim()));
  // A header that the build splits lies under the same name in a folder of the build.
  const ours = headers
    .filter((path) => path.startsWith(include) || GENERATED.test(path))
    .map((path) => path.replace(include, '').replace(GENERATED, ''));
  return [...new Set(ours.map((path) => path.split('/')[0]))].sort();
}

function hostLibrary(target, header) {
  const name = ARCHIVES.get(header);
  if (name === undefined) throw new Error(`Nobody knows under which licence ${header} is: add its archive to ARCHIVES`);
  const sources = `${root}build/deps/${target}/src/${name}`;
  if (name === 'webview') return { name, text: openingComment(readFileSync(`${sources}/src/webview.h`, 'utf8')) };
  return { name: `${name} ${archiveVersion(name)}`, text: licenceIn(sources, name) };
}

function archiveVersion(name) {
  const archive = readdirSync(`${root}build/deps/sources`).find((file) => file.startsWith(`${name}_`));
  return /_(.+)\.orig\./.exec(archive)[1];
}

/** A header by itself has its licence at its top. */
function openingComment(source) {
  const [, comment] = /^\/\*([^]*?)\*\//.exec(source) ?? [];
  if (!comment?.includes('Copyright')) throw new Error('The web-view header does not begin with its licence any more');
  return comment.replace(/^ \* ?/gm, '');
}

function windowsRuntime(name) {
  return { name: `${name} (Debian)`, text: readFileSync(`/usr/share/doc/${name}/copyright`, 'utf8') };
}

/** The folders of npm packages as a bundler listed them, from the page's own folder. */
function foldersIn(list) {
  return JSON.parse(readFileSync(`${root}build/${list}`, 'utf8'));
}

function pageLibrary(folder) {
  const { name, version } = JSON.parse(readFileSync(`${root}web/${folder}/package.json`, 'utf8'));
  return { name: `${name} ${version}`, text: licenceIn(`${root}web/${folder}`, name) };
}

/** The worker is made of modules that name themselves in its text. */
function workerFolders() {
  const worker = readdirSync(`${root}web/dist`).find((file) => /^workbox-.*\.js$/.test(file));
  const marks = readFileSync(`${root}web/dist/${worker}`, 'utf8').matchAll(/"workbox:([a-z-]+):/g);
  const folders = [...marks].map(([, module]) => `node_modules/workbox-${module}`);
  if (folders.length === 0) throw new Error('The worker no longer names the modules it is made of');
  return folders;
}

function librariesOf(target) {
  const page = foldersIn('page-packages.json');
  if (target === 'vscode') return [...new Set([...page, ...foldersIn('extension-packages.json')])].map(pageLibrary);
  const libraries = [...page, ...workerFolders()].map(pageLibrary);
  if (target === 'web') return libraries;
  const host = includedHeaders(target).map((header) => hostLibrary(target, header));
  const runtimes = target === 'windows' ? WINDOWS_RUNTIMES.map(windowsRuntime) : [];
  return [...host, ...runtimes, ...libraries];
}

/** The names of the libraries by the text of their licence: those with the same text share it. */
function byText(libraries) {
  const names = new Map();
  for (const { name, text } of libraries) {
    const tidy = text
      .replaceAll('\r\n', '\n')
      .replace(/[ \t]+$/gm, '')
      .trim();
    names.set(tidy, new Set([...(names.get(tidy) ?? []), name]));
  }
  return [...names].map(([text, all]) => ({ text, names: [...all] }));
}

function plainText(opening, licences) {
  const line = '-'.repeat(80);
  const sections = licences.map(({ text, names }) => `${line}\n${names.join('\n')}\n${line}\n\n${text}\n`);
  return [opening, ...sections].join('\n');
}

/** A field of a Debian control file that has more than one line. */
const indented = (text) => text.replace(/^/gm, ' ').replace(/^ $/gm, ' .');

/** Debian's machine-readable format, version 1.0. The libraries have no files of their own in the package. */
function machineReadable(opening, licences) {
  const head = 'Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\nUpstream-Name: Tessary\n';
  const own = `Files: *\nCopyright: the Tessary authors\nLicense: all-rights-reserved\n${indented(opening.trim())}\n`;
  const libraries = licences.map(({ text, names }, index) => {
    const files = names.map((name) => `libraries/${name.replaceAll(' ', '-')}`).join('\n ');
    const holders = [...new Set(text.match(/^.*\bcopyright\b.*(\(c\)|©|\d{4}).*$/gim) ?? ['as the licence says'])];
    const copyright = holders.map((line) => line.trim()).join('\n ');
    return `Files: ${files}\nCopyright: ${copyright}\nLicense: licence-${index + 1}\n${indented(text)}\n`;
  });
  return [head, own, ...libraries].join('\n');
}

const [target] = process.argv.slice(2);
if (!['linux', 'windows', 'web', 'vscode'].includes(target)) {
  throw new Error('Licences of what? linux, windows, web or vscode');
}
const opening = readFileSync(`${root}packaging/copyright.txt`, 'utf8');
const format = target === 'linux' ? machineReadable : plainText;
process.stdout.write(format(opening, byText(librariesOf(target))));
