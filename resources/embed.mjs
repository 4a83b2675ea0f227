// Turns folders and files into the C++ source unit of the embedded tree.
//   node embed.mjs --out FILE.cpp NAME=PATH...
// NAME is where PATH (a file, or a folder with all that it holds) lies in the tree, such as dist=web/dist.
import { existsSync, mkdirSync, readdirSync, readFileSync, statSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

/** Every file below `path`, as { path in the tree, bytes }, ordered by path; and every folder, parents first. */
export function collect(name, path, tree = { directories: [], files: [] }) {
  if (!existsSync(path)) throw new Error(`${path} is missing: build the page first (scripts/build web).`);
  if (!statSync(path).isDirectory()) {
    tree.files.push({ path: name, bytes: readFileSync(path) });
    return tree;
  }
  tree.directories.push(name);
  for (const child of readdirSync(path).sort()) collect(`${name}/${child}`, join(path, child), tree);
  return tree;
}

/** A text as a C++ string literal: all but plain ASCII as octal escapes, which end after three digits. */
export function stringLiteral(text) {
  const octal = (byte) => '\\' + byte.toString(8).padStart(3, '0');
  const plain = (byte) => byte >= 0x20 && byte < 0x7f && byte !== 0x22 && byte !== 0x5c && byte !== 0x3f;
  return '"' + [...Buffer.from(text)].map((b) => (plain(b) ? String.fromCharCode(b) : octal(b))).join('') + '"';
}

/**
 * The bytes as initialisers of 64-bit little-endian words with at least one zero byte at the end. Compilers read words
 * some ten times faster than single bytes, and string literals have a length limit in one of them.
 */
export function words(bytes) {
  const count = Math.floor(bytes.length / 8) + 1;
  const padded = Buffer.alloc(count * 8);
  bytes.copy(padded);
  const lines = [];
  for (let i = 0; i < count; i += 6) {
    const line = [];
    for (let j = i; j < Math.min(i + 6, count); j++) line.push('0x' + padded.readBigUInt64LE(j * 8).toString(16));
    lines.push(line.join(','));
  }
  return lines.join(',\n');
}

const parentOf = (path) => (path.includes('/') ? path.slice(0, path.lastIndexOf('/')) : '');
const shortName = (path) => path.slice(path.lastIndexOf('/') + 1);

/** The whole source unit. */
export function generate({ directories, files }) {
  const variable = new Map([['', 'root']]);
  directories.forEach((path, i) => variable.set(path, `directory${i}`));
  const arrays = files.map(
    (file, i) => `alignas(8) static const std::uint64_t bytes${i}[] = {\n${words(file.bytes)}};\n`,
  );
  const addDirectories = directories.map(
    (path) =>
      `    static EmbeddedDirectory& ${variable.get(path)} = ${variable.get(parentOf(path))}.addDirectory(${stringLiteral(shortName(path))});\n` +
      `    index.emplace(${stringLiteral(path)}, ${variable.get(parentOf(path))}.child(${stringLiteral(shortName(path))}));\n`,
  );
  const addFiles = files.map(
    (file, i) =>
      `    index.emplace(${stringLiteral(file.path)}, ${variable.get(parentOf(file.path))}.addFile(` +
      `${stringLiteral(shortName(file.path))}, reinterpret_cast<const char*>(bytes${i}), ${file.bytes.length}));\n`,
  );
  return (
    '// Generated from the built page: do not edit.\n' +
    '#include "server/embedded_filesystem.h"\n\n#include <bit>\n#include <cstdint>\n\n' +
    'static_assert(std::endian::native == std::endian::little, "the arrays below are little-endian words");\n\n' +
    `${arrays.join('\n')}\n` +
    'RootIndex& getRootIndex() {\n' +
    '    static EmbeddedDirectory root;\n' +
    '    static EmbeddedEntry rootEntry(root);\n' +
    '    static RootIndex index;\n' +
    '    index.emplace("", &rootEntry);\n' +
    `${addDirectories.join('')}${addFiles.join('')}` +
    '    return index;\n}\n'
  );
}

function main(args) {
  const out = args[args.indexOf('--out') + 1];
  const tree = { directories: [], files: [] };
  for (const argument of args.filter((a) => a.includes('='))) {
    const [name, path] = [argument.slice(0, argument.indexOf('=')), argument.slice(argument.indexOf('=') + 1)];
    collect(name, path, tree);
  }
  const text = generate(tree);
  if (existsSync(out) && readFileSync(out, 'utf8') === text) return;
  mkdirSync(dirname(out), { recursive: true });
  writeFileSync(out, text);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  try {
    main(process.argv.slice(2));
  } catch (error) {
    console.error(error.message);
    process.exit(1);
  }
}
